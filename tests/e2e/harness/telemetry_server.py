"""Stands in for the service that usage signals go to."""

import http.server
import json
import threading


class TelemetryServer:
    """Listens on the loopback interface from construction to close(). Answers every batch with
    `status`, or, if that is None, never."""

    def __init__(self, status=204):
        self.batches = []
        self.status = status
        self.closing = threading.Event()
        owner = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_POST(self):
                body = self.rfile.read(int(self.headers["Content-Length"]))
                owner.batches.append(json.loads(body))
                if owner.status is None:
                    owner.closing.wait()
                    return
                self.send_response(owner.status)
                self.send_header("Content-Length", "0")
                self.end_headers()

            def log_message(self, *_):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.daemon_threads = True
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    @property
    def url(self):
        return f"http://127.0.0.1:{self.server.server_port}/v2/"

    def names(self):
        """The types of all signals that arrived, in their order."""
        return [signal["type"] for batch in self.batches for signal in batch]

    def close(self):
        self.closing.set()
        self.server.shutdown()
        self.server.server_close()
