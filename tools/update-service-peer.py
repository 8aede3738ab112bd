#!/usr/bin/python3
"""A stand-in for the terminal's local update service, for tests and for trying the updates
screen by hand (`tools/update-service-peer.py --port 12547` beside `scripts/run`).

Modes: "good" answers as the service does and walks an accepted upgrade through downloading and
installing; "garbage" answers every request with text that is not JSON; "refuse" rejects every
command with HTTP 409 and a reason. The port it listens on is printed as the first line.
GET /peer/posts lists the commands received so far (path and JSON body).
"""
import argparse
import json
import sys
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

STATE = {"state": "idle", "progress": 0, "version": "1.2.16", "message": "", "ticks": 0}
AVAILABLE = {"versions": [
    {"type": "app", "version": "1.3.0", "system": False, "notes": "Faster start-up, new updates screen."},
    {"type": "app", "version": "1.2.17", "system": False, "notes": "Fixes."},
    {"type": "system", "version": "12.8", "system": True, "notes": "Security updates of the system image."},
]}
POSTS = []
LOCK = threading.Lock()


def advance():
    """Each status request moves an accepted upgrade one step on."""
    if STATE["state"] in ("downloading", "installing"):
        STATE["progress"] = min(100, STATE["progress"] + 25)
        if STATE["progress"] >= 100 and STATE["state"] == "downloading":
            STATE.update(state="installing", progress=0)
        elif STATE["progress"] >= 100:
            STATE.update(state="done", progress=100, version=STATE["target"], message="Restart to finish the update.")


class Handler(BaseHTTPRequestHandler):
    mode = "good"

    def log_message(self, *args):
        pass

    def answer(self, code, body):
        data = body if isinstance(body, bytes) else json.dumps(body).encode()
        self.send_response(code)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(data)))
        self.end_headers()
        self.wfile.write(data)

    def do_GET(self):
        with LOCK:
            if self.path == "/peer/posts":
                return self.answer(200, POSTS)
            if self.mode == "garbage":
                return self.answer(200, b"<html>502 Bad Gateway</html>")
            if self.path == "/upgrade/status":
                advance()
                return self.answer(200, {k: STATE[k] for k in ("state", "progress", "version", "message")})
            if self.path == "/upgrade/available":
                return self.answer(200, AVAILABLE)
            if self.path == "/health":
                return self.answer(200, {"status": "ok"})
            return self.answer(404, {"status": "error", "message": "unknown path"})

    def do_POST(self):
        length = int(self.headers.get("Content-Length", "0"))
        raw = self.rfile.read(length)
        with LOCK:
            try:
                body = json.loads(raw or b"{}")
            except ValueError:
                body = None
            POSTS.append({"path": self.path, "body": body})
            if self.mode == "garbage":
                return self.answer(200, b"\x00\x01 not json")
            if self.mode == "refuse":
                return self.answer(409, {"status": "error", "message": "Another update is running."})
            if self.path == "/upgrade/" and isinstance(body, dict):
                STATE.update(state="downloading", progress=0, message="", target=body.get("version", ""))
                return self.answer(200, {"status": "ok"})
            if self.path in ("/upgrade/local/", "/factory/reset"):
                return self.answer(200, {"status": "ok"})
            return self.answer(400, {"status": "error", "message": "bad request"})


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("--mode", choices=("good", "garbage", "refuse"), default="good")
    parser.add_argument("--exit-with-stdin", action="store_true", help="stop when standard input closes (tests)")
    args = parser.parse_args()
    Handler.mode = args.mode
    server = ThreadingHTTPServer(("127.0.0.1", args.port), Handler)
    print(server.server_address[1], flush=True)
    # Ends with its parent: a test that dies must not leave the peer behind.
    if args.exit_with_stdin:
        threading.Thread(target=lambda: (sys.stdin.read(), server.shutdown()), daemon=True).start()
    server.serve_forever()


if __name__ == "__main__":
    main()
