# SPDX-License-Identifier: Apache-2.0
"""A product site on loopback that a test fills and reads the log of."""

import os
import ssl
import threading
from contextlib import suppress
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

from commands import answer_of

PATIENCE = 20
"""For how many seconds a held answer waits."""


def new_certificate(folder: Path) -> Path:
    """A file in the folder with a certificate for a site on loopback, which is its own authority,
    and its key."""
    file = folder / "certificate.pem"
    request = "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 2"
    name = "-subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1"
    command = ["openssl", *request.split(), *name.split(), "-keyout", str(file), "-out", str(file)]
    answer_of(command, os.environ)
    return file


class Site:
    """Use it in a `with`. Answers with the documents given, by path; any other is not found. With
    a certificate it is read over TLS."""

    def __init__(self, documents: dict[str, bytes], certificate: Path | None = None):
        self.documents = dict(documents)
        self.requests: list[tuple[str, dict[str, str]]] = []
        """Path and headers of every request, in order."""
        self.request_lines: list[str] = []
        """The first line of whatever was sent, request or not."""
        self.may_answer = threading.Event()
        """While it is not set, every request waits."""
        self.may_answer.set()
        site = self

        class Handler(BaseHTTPRequestHandler):
            def parse_request(self):
                parsed = super().parse_request()
                site.request_lines.append(self.requestline)
                return parsed

            def do_GET(self):
                site.requests.append((self.path, dict(self.headers)))
                site.may_answer.wait(PATIENCE)
                document = site.documents.get(self.path)
                with suppress(ConnectionError):
                    self.answer(document)

            def answer(self, document: bytes | None) -> None:
                self.send_response(404 if document is None else 200)
                self.send_header("Content-Length", str(len(document or b"")))
                self.end_headers()
                self.wfile.write(document or b"")

            def log_message(self, *_):
                pass

        self._server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._scheme = "https" if certificate else "http"
        if certificate:
            tls = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            tls.load_cert_chain(certificate)
            # The first read shakes hands: one that accepts is not to wait for a silent client.
            self._server.socket = tls.wrap_socket(
                self._server.socket, server_side=True, do_handshake_on_connect=False
            )
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)

    @property
    def origin(self) -> str:
        return f"{self._scheme}://127.0.0.1:{self._server.server_port}"

    def paths(self) -> list[str]:
        return [path for path, _ in self.requests]

    def __enter__(self) -> "Site":
        self._thread.start()
        return self

    def __exit__(self, *_) -> None:
        self.may_answer.set()
        self._server.shutdown()
        self._server.server_close()
