"""certificates_test.py PROGRAM PRIVATE: which servers the transfer program believes over TLS.

PRIVATE is the program with the authorities of the file in KESTREL_TEST_AUTHORITIES. The servers are this test's own.
"""
import http.server
import os
import ssl
import subprocess
import sys
import tempfile
import threading
import unittest

BODY = b'over TLS'


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200)
        self.send_header('Content-Length', str(len(BODY)))
        self.end_headers()
        self.wfile.write(BODY)

    def log_message(self, *_):
        pass


class QuietServer(http.server.ThreadingHTTPServer):
    def handle_error(self, *_):
        pass  # a client that does not believe the server hangs up


class Authority:
    def __init__(self, folder, name):
        self.folder, self.name, self.certificate = folder, name, os.path.join(folder, name + '.pem')
        self.openssl('req', '-x509', '-newkey', 'rsa:2048', '-nodes', '-days', '2', '-subj', '/CN=' + name,
                     '-addext', 'basicConstraints=critical,CA:true', '-keyout', self.path(name, 'key'),
                     '-out', self.certificate)

    def path(self, name, ending):
        return os.path.join(self.folder, f'{name}.{ending}')

    def openssl(self, *arguments):
        subprocess.run(['openssl', *arguments], check=True, capture_output=True)

    def issue(self, name, alternative, days=1):
        """Files with a certificate and its key. Negative days: one that has expired."""
        with open(self.path(name, 'ext'), 'w') as file:
            file.write(f'subjectAltName={alternative}\n')
        self.openssl('req', '-newkey', 'rsa:2048', '-nodes', '-subj', '/CN=' + name, '-keyout', self.path(name, 'key'),
                     '-out', self.path(name, 'csr'))
        self.openssl('x509', '-req', '-in', self.path(name, 'csr'), '-CA', self.certificate,
                     '-CAkey', self.path(self.name, 'key'), '-CAcreateserial', '-days', str(days),
                     '-extfile', self.path(name, 'ext'), '-out', self.path(name, 'crt'))
        return self.path(name, 'crt'), self.path(name, 'key')


class CertificatesTest(unittest.TestCase):
    def fetch(self, program, files, authority):
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(*files)
        with QuietServer(('127.0.0.1', 0), Handler) as server:
            server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
            threading.Thread(target=server.serve_forever, daemon=True).start()
            address = f'https://127.0.0.1:{server.server_address[1]}/'
            answer = subprocess.run([program, address, '1000', '20000'], capture_output=True, timeout=60,
                                    env=os.environ | {'no_proxy': '127.0.0.1', 'KESTREL_TEST_AUTHORITIES': authority})
            server.shutdown()
        return answer.stdout

    def test_only_a_trusted_certificate_of_that_server_counts(self):
        with tempfile.TemporaryDirectory() as folder:
            ours, other = Authority(folder, 'ours'), Authority(folder, 'other')
            good = ours.issue('good', 'IP:127.0.0.1')
            rows = (('good', PRIVATE, good, ours, True),
                    ('unknown to the system', PROGRAM, good, ours, False),
                    ('of another authority', PRIVATE, good, other, False),
                    ('of another server', PRIVATE, ours.issue('elsewhere', 'DNS:elsewhere.example'), ours, False),
                    ('expired', PRIVATE, ours.issue('expired', 'IP:127.0.0.1', days=-1), ours, False))
            for name, program, files, authority, is_believed in rows:
                with self.subTest(name):
                    answer = self.fetch(program, files, authority.certificate)
                    self.assertEqual(answer == b'B' + BODY, is_believed, answer)
                    self.assertEqual(answer[:1], b'B' if is_believed else b'R')


if __name__ == '__main__':
    PROGRAM, PRIVATE = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
