#!/usr/bin/python3
"""Days of management in ten minutes: the real shell answers a mixed stream of requests.

The shell runs in the simulated terminal on the X server in DISPLAY, managed by a server of ours that
sends status, ping, getConnections and getSettings with and without data, certificate uploads,
removals and clean-ups, remote-assistance requests of type 0 (answered by pressing Escape in the
popup, as a user rejecting it would) and malformed frames, and drops the session every minute.
Every answer is checked against what the agent must answer; resident memory is sampled.

  soak.py --build BUILD_DIR [--requests 100000] [--minutes 10] [--seed N]
Prints a summary; exits 1 when a request was answered wrongly or not at all, memory grew by 5% or
more from minute 2 to the end, or the catalogue or settings files are not valid at the end.
"""

import argparse
import asyncio
import base64
import configparser
import json
import os
import random
import subprocess
import sys
import tempfile
import time

import websockets

CERTIFICATE = base64.b64encode(b"-----BEGIN CERTIFICATE-----\nMIIB\n-----END CERTIFICATE-----\n").decode()

# action -> weight in the stream
MIX = {"status": 24, "ping": 24, "getConnections": 14, "setConnections": 6, "getSettings": 10, "setSettings": 4,
       "uploadCertificate": 3, "delCertificate": 3, "cleanCertificates": 1, "remote": 1, "malformed": 10}


class Soak:
    def __init__(self, args, rng):
        self.args = args
        self.rng = rng
        self.next_id = 1
        self.pending = {}      # id -> (kind, expected check)
        self.websocket = None
        self.connected = asyncio.Event()
        self.sent = 0
        self.answered = 0
        self.lost_to_drops = 0
        self.wrong = []
        self.unsolicited = 0
        self.catalogue = []    # the list the terminal holds, in wire form
        self.memory = []       # (seconds, kB)
        self.drops = 0
        self.remote_open = None
        self.malformed = 0

    # --- what the terminal must answer ---------------------------------------------------------

    def request(self, kind):
        """(id or None for a malformed frame, the frame, the catalogue it sets or None)."""
        ident = self.next_id
        self.next_id += 1
        if kind == "malformed":
            return None, None, self.rng.choice(['{"action": "ping", "id": ', "not json at all", "[1,2,3]", '{"id": 5}',
                                          '{"action": 42}', "\u00e9\u00e8" * 50, ""])
        message = {"action": kind, "id": ident}
        catalogue = None
        if kind == "setConnections":
            message["action"] = "getConnections"
            count = self.rng.randrange(0, 6)
            catalogue = [{"Type": self.rng.choice(["RDP", "VNC", "Browser"]), "Name": f"soak-{ident}-{i}",
                                    "Address": f"10.2.{ident % 250}.{i}", "AccountPassword": f"pw {ident} \"'$"}
                                   for i in range(count)]
            message["data"] = catalogue
        elif kind == "setSettings":
            message["action"] = "getSettings"
            message["data"] = {"Soak": {"Id": ident}}
        elif kind == "uploadCertificate":
            message["data"] = {"name": f"soak-{ident % 7}.crt", "cert": CERTIFICATE, "pass": ""}
        elif kind == "delCertificate":
            message["data"] = f"soak-{ident % 7}.crt"
        elif kind == "remote":
            message["data"] = {"type": 0, "port": "5999", "token": f"t{ident}", "title": "Soak", "text": "May we?",
                               "timeout": 30}
        return ident, catalogue, json.dumps(message)

    def check(self, kind, answer):
        """Why the answer is wrong, or None."""
        data = answer.get("data")
        if kind == "ping":
            return None if answer.get("action") == "pong" and set(answer) == {"action", "id"} else "not a pong"
        if answer.get("action") != {"setConnections": "getConnections", "setSettings": "getSettings"}.get(kind, kind):
            return f"action {answer.get('action')!r}"
        if kind == "status":
            ok = isinstance(data, dict) and {"cpu", "mem", "system"} <= set(data)
            return None if ok else "status without cpu, mem and system"
        if kind == "getConnections":
            names = [record.get("Name") for record in data] if isinstance(data, list) else None
            expected = [record["Name"] for record in self.catalogue]
            return None if names == expected else f"catalogue {names} instead of {expected}"
        if kind == "setConnections":
            return None if isinstance(data, list) else "no list back"
        if kind == "getSettings":
            return None if isinstance(data, dict) else "no settings document"
        if kind == "setSettings":
            return None if "data" not in answer else "an answer with data"
        if kind in ("uploadCertificate", "delCertificate", "cleanCertificates"):
            return None if data == "ok" else f"{kind} answered {data!r}"
        if kind == "remote":
            return None if data == {"status": "reject"} else f"remote answered {data!r}"
        return "unexpected"

    # --- the server side -----------------------------------------------------------------------

    async def session(self, websocket, path=None):
        self.websocket = websocket
        await websocket.send(json.dumps({"action": "auth", "id": 0}))
        self.connected.set()
        try:
            async for frame in websocket:
                self.received(frame)
        except websockets.ConnectionClosed:
            pass
        finally:
            self.connected.clear()
            self.websocket = None
            self.lost_to_drops += len(self.pending)
            self.pending.clear()
            self.remote_open = None

    def received(self, frame):
        try:
            answer = json.loads(frame)
        except ValueError:
            self.wrong.append(f"unparsable frame {frame[:80]!r}")
            return
        ident = answer.get("id")
        if ident not in self.pending:
            self.unsolicited += 1  # its own requests (getConnections, getSettings after auth), reports
            return
        kind, catalogue = self.pending.pop(ident)
        if kind == "setConnections":
            self.catalogue = catalogue
        if kind == "remote":
            self.remote_open = None
        problem = self.check(kind, answer)
        self.answered += 1
        if problem:
            self.wrong.append(f"{kind} #{ident}: {problem}")

    async def stream(self, total, seconds):
        start = time.monotonic()
        kinds = list(MIX)
        weights = [MIX[k] for k in kinds]
        window = 32
        while self.sent < total:
            await self.connected.wait()
            # Pace the stream to finish in about `seconds`, keep a bounded number in flight.
            due = start + seconds * self.sent / total
            if time.monotonic() < due or len(self.pending) >= window:
                await asyncio.sleep(0.002)
                continue
            kind = self.rng.choices(kinds, weights)[0]
            if kind == "remote" and self.remote_open is not None:
                kind = "ping"
            ident, catalogue, text = self.request(kind)
            websocket = self.websocket
            if websocket is None:
                continue
            if ident is not None:
                self.pending[ident] = (kind, catalogue)
            try:
                await websocket.send(text)
            except websockets.ConnectionClosed:
                self.pending.pop(ident, None)  # never left: the session was being dropped
                continue
            self.sent += 1
            self.malformed += ident is None
            if kind == "remote":
                self.remote_open = ident
                asyncio.get_running_loop().call_later(0.7, self.press_escape)
        # the last answers
        deadline = time.monotonic() + 30
        while self.pending and time.monotonic() < deadline:
            await asyncio.sleep(0.05)

    def press_escape(self):
        subprocess.run(["xdotool", "key", "Escape"], check=False)

    async def drop_every_minute(self):
        while True:
            await asyncio.sleep(60)
            if self.websocket is not None:
                self.drops += 1
                await self.websocket.close()

    async def sample_memory(self, pid, started):
        while True:
            try:
                with open(f"/proc/{pid}/status") as status:
                    for line in status:
                        if line.startswith("VmRSS:"):
                            self.memory.append((time.monotonic() - started, int(line.split()[1])))
            except FileNotFoundError:
                return
            await asyncio.sleep(5)


def valid_files(root):
    problems = []
    data = os.path.join(root, "data", "norbix")
    try:
        with open(os.path.join(data, "connections.json")) as catalogue:
            if not isinstance(json.load(catalogue), list):
                problems.append("connections.json is not a list")
    except (OSError, ValueError) as error:
        problems.append(f"connections.json: {error}")
    for name in sorted(os.listdir(data)):
        if name.endswith(".ini"):
            parser = configparser.RawConfigParser(strict=False)
            try:
                parser.read(os.path.join(data, name))
            except configparser.Error as error:
                problems.append(f"{name}: {error}")
    return problems


async def run(args):
    rng = random.Random(args.seed)
    soak = Soak(args, rng)
    with tempfile.TemporaryDirectory(prefix="soak-") as root:
        os.makedirs(os.path.join(root, "home"))
        os.makedirs(os.path.join(root, "data", "norbix"))
        async with websockets.serve(soak.session, "127.0.0.1", 0, max_size=None) as server:
            port = server.sockets[0].getsockname()[1]
            with open(os.path.join(root, "data", "norbix", "api.ini"), "w") as seed:
                seed.write(f"[General]\nEnabled=true\nURL=ws://127.0.0.1:{port}/api/v1/ws\n")
            env = dict(os.environ, NORBIX_SIMULATE="1", NORBIX_ROOT=root, HOME=os.path.join(root, "home"),
                       QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", LANG="C.UTF-8")
            shell = subprocess.Popen([os.path.join(args.build, "src", "norbix-shell")], env=env, cwd=args.build,
                                     stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            started = time.monotonic()
            tasks = [asyncio.create_task(soak.drop_every_minute()),
                     asyncio.create_task(soak.sample_memory(shell.pid, started))]
            try:
                await asyncio.wait_for(soak.stream(args.requests, args.minutes * 60), args.minutes * 60 * 3)
            finally:
                for task in tasks:
                    task.cancel()
                alive = shell.poll() is None
                shell.terminate()
                try:
                    shell.wait(10)
                except subprocess.TimeoutExpired:
                    shell.kill()
        files = valid_files(root)
    elapsed = time.monotonic() - started
    after_two = [kb for at, kb in soak.memory if at >= 120]
    growth = (after_two[-1] - after_two[0]) / after_two[0] * 100 if len(after_two) >= 2 else float("nan")
    unanswered = soak.sent - soak.answered - soak.lost_to_drops - soak.malformed
    print(f"SOAK seed={args.seed} sent={soak.sent} answered={soak.answered} wrong={len(soak.wrong)} "
          f"malformed={soak.malformed} unanswered={unanswered} lost_to_drops={soak.lost_to_drops} drops={soak.drops} terminal_requests={soak.unsolicited} "
          f"rss_minute2={after_two[0] if after_two else 0}kB rss_end={after_two[-1] if after_two else 0}kB "
          f"growth={growth:.1f}% files={'valid' if not files else files} shell_alive={alive} {elapsed:.0f}s",
          flush=True)
    for problem in soak.wrong[:20]:
        print("WRONG", problem)
    ok = not soak.wrong and not files and alive and growth < 5.0 and unanswered <= 0
    return 0 if ok else 1


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", required=True)
    parser.add_argument("--requests", type=int, default=100000)
    parser.add_argument("--minutes", type=float, default=10)
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 30))
    args = parser.parse_args()
    args.build = os.path.abspath(args.build)
    return asyncio.run(run(args))


if __name__ == "__main__":
    sys.exit(main())
