#!/usr/bin/python3
"""Idle CPU of the shell while managed: connected to tools/mgmt-peer, the server's settings
received, on the main view; against the minimal Qt Quick window.

Runs inside an X server (scripts/bench starts one). Prints
  BENCH idle_cpu_managed ratio=<ours/max(floor, 0.5%)> ours=<share>% floor=<share>%
Medians over interleaved rounds (BENCH_IDLE_ROUNDS, default 2) of BENCH_IDLE_SECONDS (default 20).
"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from procstat import cpu_seconds, stop

BUILD = os.path.abspath(sys.argv[1])
TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
ROUNDS = int(os.environ.get("BENCH_IDLE_ROUNDS", "2"))
IDLE_SECONDS = float(os.environ.get("BENCH_IDLE_SECONDS", "20"))

SHELL = os.path.join(BUILD, "src", "norbix-shell")
FLOOR = os.path.join(BUILD, "bench", "bench_minimal_window")


class Peer:
    """tools/mgmt-peer as a child: lines in are frames to the terminal, "RECV" lines out are its frames."""

    def __init__(self):
        self.proc = subprocess.Popen(["/usr/bin/python3", os.path.join(TOP, "tools", "mgmt-peer"), "--port", "0"],
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                     text=True, bufsize=1)
        self.port = int(self.wait_for("LISTENING ").split()[1])

    def wait_for(self, prefix, timeout=60):
        deadline = time.monotonic() + timeout
        for line in self.proc.stdout:
            if line.startswith(prefix):
                return line.strip()
            if time.monotonic() > deadline:
                break
        raise RuntimeError(f"mgmt-peer: no {prefix.strip()}")

    def send(self, line):
        self.proc.stdin.write(line + "\n")
        self.proc.stdin.flush()

    def stop(self):
        self.proc.kill()
        self.proc.wait()


def idle_share(proc):
    before, t0 = cpu_seconds(proc.pid), time.monotonic()
    time.sleep(IDLE_SECONDS)
    return 100.0 * (cpu_seconds(proc.pid) - before) / (time.monotonic() - t0)


def run(program, sandbox, env):
    shutil.copy(os.path.join(BUILD, "quarnos.ttf"), sandbox)
    args = [program, "--first-frame-marker", "--size", "1280x720"] if program == SHELL else [program]
    proc = subprocess.Popen(args, cwd=sandbox, env=env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    for line in proc.stdout:
        if "norbix: first frame" in line:
            return proc
    raise RuntimeError(f"{program} ended without a first frame")


def measure(program):
    with tempfile.TemporaryDirectory() as sandbox:
        root, home = os.path.join(sandbox, "root"), os.path.join(sandbox, "home")
        os.makedirs(os.path.join(root, "data", "norbix"))
        os.makedirs(home)
        env = dict(os.environ, NORBIX_SIMULATE="1", NORBIX_ROOT=root, HOME=home)
        env.pop("NORBIX_COMMAND_LOG", None)
        peer = None
        if program == SHELL:
            peer = Peer()
            with open(os.path.join(root, "data", "norbix", "api.ini"), "w") as ini:
                ini.write(f"[General]\nEnabled=true\nURL=ws://127.0.0.1:{peer.port}/api/v1/ws\n")
        proc = run(program, sandbox, env)
        try:
            if peer:
                peer.wait_for('RECV {"action":"getSettings"}')  # connected and identified
                peer.send('getSettings {"USB":{"Enabled":true},"Screens":{"Sleep":1}}')
                peer.wait_for('RECV {"action":"setSettings"')  # the server's settings applied and reported
            time.sleep(2.0)
            return idle_share(proc)
        finally:
            stop(proc)
            if peer:
                peer.stop()


def main():
    shares = {"ours": [], "floor": []}
    for _ in range(ROUNDS):
        shares["ours"].append(measure(SHELL))
        shares["floor"].append(measure(FLOOR))
    ours, floor = statistics.median(shares["ours"]), statistics.median(shares["floor"])
    print(f"BENCH idle_cpu_managed ratio={ours / max(floor, 0.5):.2f} ours={ours:.2f}% floor={floor:.2f}%", flush=True)


if __name__ == "__main__":
    main()
