"""A web server on this machine, for sites that there are not."""

import http.server
import threading


class Site(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def __init__(self, pages):
        """The pages are HTML by the host or the path that is asked for; the first is the answer to all else."""
        super().__init__(("127.0.0.1", 0), Visit)
        self.pages = pages
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def address(self, host, path="/"):
        return f"http://{host}:{self.server_address[1]}{path}"


class Visit(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        pages = self.server.pages
        name = next((name for name in (self.path, self.headers["Host"]) if name in pages), next(iter(pages)))
        content = pages[name].encode()
        try:
            self.send_response(200)
            self.send_header("Content-Type", "text/html; charset=utf-8")
            self.send_header("Content-Length", str(len(content)))
            self.end_headers()
            self.wfile.write(content)
        except OSError:
            pass  # the visitor has left

    def log_message(self, *_):
        pass
