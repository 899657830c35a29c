"""A server on the loopback that hands out films in the ways that servers do, good and bad."""

import os
import re
import socket
import struct
import subprocess
import threading
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer


def make_films(folder):
    """Films of a few seconds: a plain one, one as HLS, one as DASH with separate sound."""

    def ffmpeg(*arguments):
        subprocess.run(["ffmpeg", "-v", "error", "-y", *arguments], check=True, cwd=folder)

    source = ["-f", "lavfi", "-i", "testsrc2=s=320x240:r=25:d=6", "-f", "lavfi", "-i", "sine=d=6"]
    codecs = ["-c:v", "libx264", "-preset", "ultrafast", "-b:v", "1500k", "-g", "25", "-c:a", "aac"]
    ffmpeg(*source, *codecs, "-movflags", "+faststart", "film.mp4")
    ffmpeg("-i", "film.mp4", "-c", "copy", "film.mkv")
    ffmpeg("-i", "film.mp4", "-c", "copy", "-hls_time", "1", "-hls_list_size", "0", "film.m3u8")
    ffmpeg("-i", "film.mp4", "-map", "0:v", "-map", "0:a", "-c", "copy", "-seg_duration", "1", "-f", "dash", "film.mpd")
    ffmpeg("-i", "film.mp4", "-c", "copy", "-f", "flv", "film.flv")
    ffmpeg("-i", "film.mp4", "-frames:v", "1", "cover.jpg")


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *arguments):
        pass

    def do_HEAD(self):
        self.do_GET()

    def do_GET(self):
        place = re.sub(r"^\w+://[^/]*", "", self.path.partition("?")[0])  # as a proxy is asked
        way, _, name = place.lstrip("/").partition("/")
        with self.server.lock:
            self.server.requests.append((self.command, self.path, self.headers.get("Range")))
            self.server.asked.append((time.monotonic(), self.path))
        getattr(self, "way_" + (way if way != self.server.gone else "gone"), self.not_found)(name)

    # Ways

    def way_plain(self, name):
        self.send_file(name)

    def way_noranges(self, name):
        self.send_file(name, ranges=False)

    def way_slow(self, name):
        self.send_file(name, bytes_per_second=self.server.slow_rate)

    def way_resetting(self, name):
        """Each connection breaks after a third of the file."""
        self.send_file(name, stop_after=self.size(name) // 3, reset=True)

    def way_cut(self, name):
        """Hands out two thirds and calls them everything."""
        self.send_file(name, length=self.size(name) * 2 // 3)

    def way_modest(self, name):
        """Says that less comes than does."""
        self.send_file(name, told=-100_000)

    def way_text(self, name):
        self.answer(200, b"WEBVTT\n\n00:01.000 --> 00:03.000\nWords\n", {"Content-Type": "text/vtt"})

    def way_redirect(self, name):
        self.answer(302, headers={"Location": "/plain/" + name})

    def way_ftp(self, name):
        self.answer(302, headers={"Location": self.server.ftp})

    def way_forbidden(self, name):
        self.answer(403)

    def way_gone(self, name):
        self.answer(404)

    def way_busy(self, name):
        """Refuses the first few requests for a film."""
        with self.server.lock:
            self.server.refusals -= 1
            refuses = self.server.refusals >= 0
        if refuses:
            return self.answer(429, headers={"Retry-After": "2"})
        self.send_file(name)

    def way_page(self, name):
        """A page with players. Addresses of "expiring" are good until 40 % of the film has gone out."""
        if name == "expiring":
            with self.server.lock:
                self.server.token += 1
            body = f'<video src="/token/{self.server.token}/film.mp4"></video>'
        elif name == "list":
            body = '<video src="/plain/film.mp4"></video><video src="/plain/film.mkv"></video>'
        elif name == "rich":
            track = '<track kind="subtitles" srclang="en" src="/text/words.vtt">'
            body = f'<video poster="/plain/cover.jpg" src="/plain/{self.server.film}">{track}</video>'
        elif name == "none":
            body = "<p>Nothing to see</p>"
        else:
            body = f'<video src="/{name if "/" in name else "plain/" + name}"></video>'
        title = self.server.title
        self.answer(200, f"<html><head><title>{title}</title></head><body>{body}</body></html>".encode(),
                    {"Content-Type": "text/html; charset=utf-8"})

    def way_token(self, name):
        token, _, name = name.partition("/")
        with self.server.lock:
            is_old = int(token) in self.server.expired
            if self.command == "GET" and self.server.token == 1:
                self.server.expired.add(int(token))
        if is_old:
            return self.answer(403)
        self.send_file(name, stop_after=self.size(name) * 2 // 5 if int(token) == 1 else None, reset=True)

    def way_endless(self, name):
        """Goes on for ever, as fast as it is read."""
        self.send_response(200)
        self.send_header("Content-Type", "video/mp4")
        self.end_headers()
        while self.command == "GET":
            self.wfile.write(b"\0" * 65536)

    # How

    def size(self, name):
        return os.path.getsize(os.path.join(self.server.folder, name))

    def not_found(self, name):
        self.answer(404)

    def answer(self, status, body=b"", headers=None):
        self.send_response(status)
        for key, value in (headers or {}).items():
            self.send_header(key, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if self.command == "GET":
            self.wfile.write(body)

    def send_file(self, name, ranges=True, bytes_per_second=None, stop_after=None, reset=False, length=None, told=0):
        path = os.path.join(self.server.folder, os.path.basename(name))
        if not os.path.isfile(path):
            return self.answer(404)
        with open(path, "rb") as file:
            data = file.read()[:length]
        start = 0
        wanted = re.fullmatch(r"bytes=(\d+)-(\d*)", self.headers.get("Range") or "")
        if ranges and wanted:
            start = int(wanted[1])
            if start >= len(data):
                return self.answer(416, headers={"Content-Range": f"bytes */{len(data)}"})
            end = min(int(wanted[2] or len(data) - 1), len(data) - 1)
        else:
            end = len(data) - 1
        piece = data[start:end + 1]
        self.send_response(206 if ranges and wanted else 200)
        kinds = {".m3u8": "application/vnd.apple.mpegurl", ".mpd": "application/dash+xml", ".mkv": "video/x-matroska",
                 ".flv": "video/x-flv", ".jpg": "image/jpeg"}
        self.send_header("Content-Type", kinds.get(os.path.splitext(name)[1], "video/mp4"))
        if ranges:
            self.send_header("Accept-Ranges", "bytes")
        if ranges and wanted:
            self.send_header("Content-Range", f"bytes {start}-{end}/{len(data)}")
        self.send_header("Content-Length", str(len(piece) + told))
        self.close_connection |= told != 0
        self.end_headers()
        if self.command != "GET":
            return
        self.send_piece(piece if stop_after is None else piece[:stop_after], bytes_per_second)
        if stop_after is not None and stop_after < len(piece):
            self.break_off(reset)

    def send_piece(self, piece, bytes_per_second):
        if not bytes_per_second:
            self.wfile.write(piece)
            return
        step = max(1, bytes_per_second // 20)
        for place in range(0, len(piece), step):
            self.wfile.write(piece[place:place + step])
            time.sleep(0.05)

    def break_off(self, reset):
        self.wfile.flush()
        if reset:
            time.sleep(0.5)  # what was sent is thrown away with the connection
            self.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self.close_connection = True


class FilmServer(ThreadingHTTPServer):
    """Serves the films of `folder`; what was asked for is in `requests`: method, path, range."""

    daemon_threads = True

    def __init__(self, folder):
        super().__init__(("127.0.0.1", 0), Handler)
        self.folder = folder
        self.lock = threading.Lock()
        self.reset()
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def reset(self):
        self.requests = []
        self.asked = []  # when, path
        self.expired = set()
        self.token = 0
        self.refusals = 0
        self.slow_rate = 150_000
        self.title = "A film"
        self.gone = None  # a way
        self.film = "film.mp4"  # of the page "rich"

    def handle_error(self, request, client_address):
        pass  # clients go away

    def address(self, path):
        return f"http://127.0.0.1:{self.server_port}/{path}"

    def ranges_of(self, path):
        with self.lock:
            return [wanted for method, asked, wanted in self.requests if asked == path and method == "GET" and wanted]


if __name__ == "__main__":
    import sys
    make_films(sys.argv[1])
    server = FilmServer(sys.argv[1])
    print(server.address(""), flush=True)
    threading.Event().wait()
