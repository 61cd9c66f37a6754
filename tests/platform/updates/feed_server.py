#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Serves a folder as an update feed's server would, well or badly. Makes its certificates in the folder, prints
the ports as one line of JSON, then a line for every request, and ends with its standard input."""
import http.server
import json
import os
import ssl
import subprocess
import sys
import threading
import urllib.parse


def openssl(*arguments):
    subprocess.run(["openssl", *arguments], check=True, stderr=subprocess.DEVNULL)


def make_certificate(name, host, signed):
    openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-days", "2",
            "-keyout", name + ".key", "-out", name + ".pem", "-subj", "/CN=" + name,
            *(["-addext", "subjectAltName=DNS:" + host] if host else []),
            *(["-CA", "ca.pem", "-CAkey", "ca.key"] if signed else []))


class Handler(http.server.SimpleHTTPRequestHandler):
    timeout = 20

    def do_GET(self):
        print("%s %s" % (self.server.kind, self.path), flush=True)
        path, _, query = self.path.partition("?")
        action = getattr(self, "serve_" + path[1:], None)
        try:
            action(urllib.parse.unquote(query)) if action else super().do_GET()
        except OSError:
            self.close_connection = True

    def do_CONNECT(self):
        print("%s %s" % (self.server.kind, self.path), flush=True)
        self.answer(403)

    def answer(self, status, body=b"", **headers):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def end_headers(self):
        self.send_header("Set-Cookie", "seen=1")
        super().end_headers()

    def serve_headers(self, _):
        """What the request told of the one who asks."""
        self.answer(200, "".join(sorted("%s: %s\n" % header for header in self.headers.items())).encode())

    def serve_redirect(self, to):
        self.answer(302, b"elsewhere", Location=to)

    def serve_hops(self, left):
        self.answer(302, location="/hops?%d" % (int(left) - 1) if int(left) > 1 else "/feed")

    def serve_silent(self, _):
        self.rfile.read(1)

    def serve_endless(self, _):
        self.send_response(200)
        self.end_headers()
        for _ in range(1 << 17):
            self.wfile.write(b"<rss>" * 13107)

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def __init__(self, kind):
        super().__init__(("127.0.0.1", 0), Handler)
        self.kind = kind
        if kind != "plain":
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(kind + ".pem", kind + ".key")
            self.socket = context.wrap_socket(self.socket, server_side=True, do_handshake_on_connect=False)

    def handle_error(self, request, address):
        pass


def main():
    os.chdir(sys.argv[1])
    make_certificate("ca", None, False)
    make_certificate("trusted", "localhost", True)
    make_certificate("selfsigned", "localhost", False)
    servers = [Server(kind) for kind in ("plain", "trusted", "selfsigned")]
    print(json.dumps({server.kind: server.server_address[1] for server in servers}), flush=True)
    for server in servers:
        threading.Thread(target=server.serve_forever, daemon=True).start()
    sys.stdin.read()


main()
