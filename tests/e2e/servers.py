"""An HTTP server of the tests' own, which may answer as badly as it likes: raw sockets on the loopback interface.

    with Server({'/good': document, '/bad': HOSTILE['gzip bomb']}) as server:
        address = server.url('/good')
"""
import gzip
import plistlib
import select
import socket
import threading

PATIENCE = 60  # how long an answer goes on with a client that does not leave


class Connection:
    """A client that has asked for `path`. An answer sends what it wants; what it does not end, its return does."""

    def __init__(self, server, client, path):
        self.server, self.client, self.path = server, client, path

    def send(self, data):
        self.client.sendall(data if isinstance(data, bytes) else data.encode())

    def head(self, status='200 OK', **headers):
        """`Content_Length=5` becomes a header "Content-Length: 5"."""
        lines = [f'{name.replace("_", "-")}: {value}' for name, value in headers.items()]
        self.send('\r\n'.join([f'HTTP/1.1 {status}', *lines, 'Connection: close', '', '']))

    def document(self, body, status='200 OK', content_type='text/xml', **headers):
        self.head(status, Content_Type=content_type, Content_Length=len(body), **headers)
        self.send(body)

    def wait(self, seconds=PATIENCE):
        """True when the time is over; False as soon as the client or the server has gone."""
        ready, _, _ = select.select([self.client, self.server.ending], [], [], seconds)
        return not ready

    def repeat(self, data, pause=0.0):
        """Sends it until the client has gone."""
        while self.wait(pause):
            self.send(data)


def property_list(size):
    """A valid one of exactly that many bytes."""
    text = plistlib.dumps({'filling': ''})
    return plistlib.dumps({'filling': 'x' * (size - len(text))})


def bomb(connection):
    """100 MB in 100 KB."""
    connection.document(gzip.compress(bytes(100_000_000)), Content_Encoding='gzip')


def endless(connection):
    connection.head(Content_Type='text/xml')
    connection.repeat(b'x' * 65536)


def slow(connection):
    connection.head(Content_Length=1_000_000)
    connection.repeat(b' ', pause=1)


def stall(connection):
    connection.head(Content_Length=1000)
    connection.wait()


HOSTILE = {
    'endless body': endless,
    'one byte a second': slow,
    'stall after the headers': stall,
    'gzip bomb': bomb,
    'binary noise': lambda connection: connection.send(bytes(range(255, -1, -1)) * 40),
    'HTML': lambda connection: connection.document(b'<!DOCTYPE html><p>Sign in to this network', content_type='text/html'),
    'list of 999 KB': lambda connection: connection.document(property_list(999_000)),
    'list of 1.1 MB': lambda connection: connection.document(property_list(1_100_000)),
}


class Server:
    """Answers on a port of its own until it is closed. A document is its bytes, (status, bytes), or (status, bytes,
    content type), as in ('404 Not Found', b''); a function is called with the Connection. `requests` are the paths that
    were asked for, in order."""

    def __init__(self, documents=None):
        self.documents, self.requests, self.threads = dict(documents or {}), [], []
        self.ending, self._end = socket.socketpair()
        self.listener = socket.create_server(('127.0.0.1', 0))
        self._start(self._listen)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def url(self, path='/'):
        return 'http://127.0.0.1:%d%s' % (self.listener.getsockname()[1], path)

    def close(self):
        self._end.close()
        for thread in self.threads:
            thread.join()
        self.listener.close()
        self.ending.close()

    def _start(self, job, *arguments):
        self.threads.append(threading.Thread(target=job, args=arguments, daemon=True))
        self.threads[-1].start()

    def _listen(self):
        while self.ending not in select.select([self.listener, self.ending], [], [])[0]:
            self._start(self._serve, self.listener.accept()[0])

    def _serve(self, client):
        client.settimeout(PATIENCE)
        try:
            with client, client.makefile('rb') as request:
                path = request.readline().decode('latin-1').split(' ')[1]
                while request.readline().strip():
                    pass
                self.requests.append(path)
                self._answer(Connection(self, client, path))
        except (OSError, IndexError):  # the client has gone, which is what most of these answers are for
            pass

    def _answer(self, connection):
        answer = self.documents.get(connection.path, ('404 Not Found', b''))
        if callable(answer):
            answer(connection)
        elif isinstance(answer, bytes):
            connection.document(answer)
        else:
            status, body, *content_type = answer
            connection.document(body, status, *content_type)
