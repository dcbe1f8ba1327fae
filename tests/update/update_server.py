#!/usr/bin/env python3
"""Local HTTP server for the update tests.

Serves the files of a folder, plus:
  /redirect/<path>  302 to /<path>
  /stall/<anything> accepts the request and never answers
Every request's path and User-Agent are appended to <folder>/requests.log.
Prints the port on the first line of standard output.
"""
import http.server
import os
import sys
import threading
import time


class Handler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *args):
        pass

    def do_GET(self):
        with open(os.path.join(self.directory, "requests.log"), "a") as log:
            log.write("%s\t%s\n" % (self.path, self.headers.get("User-Agent", "")))
        if self.path.startswith("/redirect/"):
            self.send_response(302)
            self.send_header("Location", "/" + self.path[len("/redirect/"):])
            self.send_header("Content-Length", "0")
            self.end_headers()
            return
        if self.path.startswith("/stall/"):
            time.sleep(3600)
            return
        super().do_GET()


def main():
    folder = sys.argv[1]
    server = http.server.ThreadingHTTPServer(
        ("127.0.0.1", 0), lambda *a, **k: Handler(*a, directory=folder, **k))
    server.daemon_threads = True
    print(server.server_address[1], flush=True)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    # Ends with the test: standard input closes when the test goes away.
    sys.stdin.read()
    server.shutdown()


if __name__ == "__main__":
    main()
