#!/usr/bin/python3
"""The VNC viewers on a desktop in use, over modelled links: TigerVNC, KRDC and ours, each with
its own default settings.

Usage: vnc_links.py BUILD_DIR (as root: it makes two network namespaces of its own).

The server is TigerVNC's Xvnc (1920x1080) showing bench_vnc_scene: a terminal scrolling text, a
window dragged around, a video-like picture on a wallpaper, and a frame stamp. Xvnc and a delay
relay (bench_vnc_delay_relay) run in one namespace, the viewer in another, joined by a veth pair
shaped with tc tbf in both directions; the relay adds half the round trip each way (the kernel has
no netem). The viewer shows on an Xvfb of its own, where bench_vnc_probe counts the distinct frame
stamps that reach the screen and types a key every KEYS_MS (the scene answers by switching a
marker; the time until it shows is the input-to-screen latency).

Links (BENCH_VNC_LINKS picks some): 1gbit (0.5 ms round trip), 100mbit (5 ms), 20mbit (20 ms).
Per link, ratios within each round (median, min and max over rounds):
  BENCH vnc_<link>_fps ratio=<best peer's frames per second / ours>
  BENCH vnc_<link>_cpu_per_frame ratio=<our CPU per frame / the best peer's>
  BENCH vnc_<link>_bytes_per_frame ratio=<our bytes on the wire per frame / the best peer's>
  BENCH vnc_<link>_latency ratio=<our median key-to-screen time / the best peer's>
The best peer is the one with the higher frame rate in that round; lower ratios are better.
"""
import json
import os
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import vnc  # noqa: E402  (shares the helpers of the loopback benchmark)

BUILD = os.path.abspath(sys.argv[1])
ROUNDS = int(os.environ.get("BENCH_VNC_LINK_ROUNDS", "3"))
SECONDS = float(os.environ.get("BENCH_VNC_LINK_SECONDS", "8"))
WARMUP = float(os.environ.get("BENCH_VNC_LINK_WARMUP", "3"))
KEYS_MS = float(os.environ.get("BENCH_VNC_KEYS_MS", "700"))
# Other programs' share of the machine (cores) above which a run is tried again. Off by default: on a
# machine shared with builds the rounds would never end; run it niced below zero, as scripts/bench does.
MAX_FOREIGN = float(os.environ.get("BENCH_VNC_LINK_MAX_FOREIGN", "inf"))
ONLY = [k for k in os.environ.get("BENCH_VNC_LINK_VIEWERS", "").split(",") if k]
LINKS = {  # name: (bit/s, round trip in ms)
    "1gbit": (1_000_000_000, 0.5),
    "100mbit": (100_000_000, 5.0),
    "20mbit": (20_000_000, 20.0),
}
SELECTED_LINKS = [k for k in os.environ.get("BENCH_VNC_LINKS", ",".join(LINKS)).split(",") if k]
SCENE = os.path.join(BUILD, "bench", "bench_vnc_scene")
PROBE = os.path.join(BUILD, "bench", "bench_vnc_probe")
RELAY = os.path.join(BUILD, "bench", "bench_vnc_delay_relay")
SHELL = os.path.join(BUILD, "src", "norbix-shell")
SERVER_NS = f"nbxvnc-s{os.getpid()}"
CLIENT_NS = f"nbxvnc-c{os.getpid()}"
SERVER_IP, CLIENT_IP = "10.213.0.1", "10.213.0.2"
SERVER_IF, CLIENT_IF = f"nbs{os.getpid() % 100000}", f"nbc{os.getpid() % 100000}"


def sh(*argv):
    subprocess.run(argv, check=True, stdout=subprocess.DEVNULL)


def in_ns(ns, argv):
    return ["ip", "netns", "exec", ns, *argv]


def make_namespaces():
    sh("ip", "netns", "add", SERVER_NS)
    sh("ip", "netns", "add", CLIENT_NS)
    sh("ip", "link", "add", SERVER_IF, "type", "veth", "peer", "name", CLIENT_IF)
    sh("ip", "link", "set", SERVER_IF, "netns", SERVER_NS)
    sh("ip", "link", "set", CLIENT_IF, "netns", CLIENT_NS)
    for ns, interface, address in ((SERVER_NS, SERVER_IF, SERVER_IP), (CLIENT_NS, CLIENT_IF, CLIENT_IP)):
        sh("ip", "-n", ns, "addr", "add", f"{address}/24", "dev", interface)
        sh("ip", "-n", ns, "link", "set", interface, "up")
        sh("ip", "-n", ns, "link", "set", "lo", "up")


def remove_namespaces():
    for ns in (SERVER_NS, CLIENT_NS):
        subprocess.run(["ip", "netns", "del", ns], stderr=subprocess.DEVNULL)


def shape(rate):
    """tbf at the link's rate on both ends; a queue of 25 ms, as a router's would be."""
    burst = max(rate // 8 // 250, 32 * 1024)  # at least one timer tick's worth at 250 Hz
    for ns, interface in ((SERVER_NS, SERVER_IF), (CLIENT_NS, CLIENT_IF)):
        sh(*in_ns(ns, ["tc", "qdisc", "replace", "dev", interface, "root", "tbf", "rate", f"{rate}bit",
                       "burst", str(burst), "latency", "25ms"]))


def our_sandbox(sandbox, address):
    data = os.path.join(sandbox, "root", "data", "norbix")
    os.makedirs(data)
    os.makedirs(os.path.join(sandbox, "home"))
    record = {"type": 1, "name": "Bench", "address": address, "password": "unused", "fullscreen": True, "percentage": 100,
              "auto_connect": True, "enabled": True}
    # A fixed choice instead of the automatic one, to compare encodings on a link by hand.
    if os.environ.get("BENCH_VNC_OURS_ENCODINGS"):
        encodings, _, levels = os.environ["BENCH_VNC_OURS_ENCODINGS"].partition("/")
        compress, _, quality = levels.partition("/")
        record.update(encodings=encodings, compressLevel=int(compress or -1), qualityLevel=int(quality or -1))
    with open(os.path.join(data, "connections.json"), "w") as catalogue:
        json.dump([record], catalogue)
    font = os.path.join(BUILD, "quarnos.ttf")
    if os.path.exists(font):
        shutil.copy(font, sandbox)
    return {"NORBIX_SIMULATE": "1", "NORBIX_ROOT": os.path.join(sandbox, "root"), "HOME": os.path.join(sandbox, "home")}


def viewer_command(kind, port, sandbox):
    address = f"{SERVER_IP}:{port}"
    if kind == "ours":
        return [SHELL], our_sandbox(sandbox, address)
    if kind == "tigervnc":
        return ["xtigervncviewer", f"{SERVER_IP}::{port}"], {"HOME": sandbox}
    if kind == "krdc":
        return ["krdc", f"vnc://{address}"], vnc.krdc_home(sandbox)
    raise ValueError(kind)


class Probe(vnc.Reporter):
    """The probe's status lines, and its latency samples with the time they arrived."""

    def __init__(self, proc):
        self.samples = []
        self.found = None
        super().__init__(proc, "probe")

    def _follow(self, proc, prefix):
        for line in proc.stdout:
            if line.startswith("latency ms="):
                with self.lock:
                    self.samples.append((time.monotonic(), float(line.split("=", 1)[1])))
            elif line.startswith("found"):
                self.found = line.split()[1:]
            elif line.startswith("ready"):
                self.ready.set()
            elif line.startswith(prefix):
                fields = dict(item.split("=", 1) for item in line.split()[1:])
                with self.lock:
                    self.values = {k: float(v) for k, v in fields.items()}

    def latencies(self, since, until):
        with self.lock:
            return [ms for t, ms in self.samples if since <= t <= until]


def free_display():
    """A display number no X server uses. The server's namespace cannot see the abstract sockets
    of the others, so -displayfd there could take the number of the viewer's Xvfb."""
    for number in range(60 + os.getpid() % 100, 400):
        if not os.path.exists(f"/tmp/.X11-unix/X{number}") and not os.path.exists(f"/tmp/.X{number}-lock"):
            return number
    raise RuntimeError("no free X display number")


def start_xvnc(sandbox, port):
    read_end, write_end = os.pipe()
    xvnc = subprocess.Popen(in_ns(SERVER_NS, ["Xvnc", f":{free_display()}", "-displayfd", str(write_end), "-geometry", "1920x1080", "-depth", "24",
                                              "-rfbport", str(port), "-localhost", "-SecurityTypes", "None",
                                              "-AlwaysShared", "-nolisten", "tcp", "-desktop", "bench"]),
                            pass_fds=(write_end,), stdout=subprocess.DEVNULL, stderr=open(os.path.join(sandbox, "xvnc.log"), "w"))
    os.close(write_end)
    with os.fdopen(read_end) as pipe:
        display = pipe.readline().strip()
    if not display:
        raise RuntimeError("Xvnc did not start")
    return xvnc, ":" + display


def run_once(kind, display, xvfb):
    with tempfile.TemporaryDirectory(prefix="vnclinks-") as sandbox:
        port, relay_port = vnc.free_port(), vnc.free_port()
        xvnc, server_display = start_xvnc(sandbox, port)
        scene = subprocess.Popen(in_ns(SERVER_NS, [SCENE]), env=dict(os.environ, DISPLAY=server_display),
                                 stdout=subprocess.PIPE, text=True)
        # The delay line holds what is in flight: twice the bandwidth-delay product and 2 ms of
        # the link's rate (the relay is woken late now and then on a busy machine), 64 KiB at least.
        queue = max(64 * 1024, int(LINK_RATE / 8 * (0.002 + 2 * LINK_DELAY_US / 1e6)))
        relay = subprocess.Popen(in_ns(SERVER_NS, [RELAY, SERVER_IP, str(relay_port), "127.0.0.1", str(port),
                                                   str(int(LINK_DELAY_US)), str(queue)]), stdout=subprocess.PIPE, text=True)
        relay_status = vnc.Reporter(relay, "relay")
        procs = [xvnc, scene, relay]
        viewer = probe_proc = None
        try:
            if scene.stdout.readline().strip() != "ready" or not relay_status.ready.wait(10):
                raise RuntimeError("scene or relay did not start")
            argv, extra = viewer_command(kind, relay_port, sandbox)
            env = dict(os.environ, DISPLAY=display, **extra)
            env.pop("QT_QPA_PLATFORM", None)
            log = open(os.path.join(sandbox, "viewer.log"), "w")
            viewer = subprocess.Popen(in_ns(CLIENT_NS, argv), cwd=sandbox, env=env, stdout=log, stderr=log, start_new_session=True)
            probe_proc = subprocess.Popen([PROBE, "--keys-every", str(KEYS_MS)], env=dict(os.environ, DISPLAY=display),
                                          stdout=subprocess.PIPE, text=True)
            probe = Probe(probe_proc)
            deadline = time.monotonic() + 40
            while probe.get("frames") < 2:
                if time.monotonic() > deadline or viewer.poll() is not None:
                    print(f"  {kind}: the desktop never reached the viewer's screen (probe: {probe.values}, "
                          f"found {probe.found})", file=sys.stderr)
                    if os.environ.get("BENCH_VNC_KEEP_LOGS"):
                        subprocess.run([PROBE, "--dump", os.path.join(sandbox, "screen.ppm")], env=dict(os.environ, DISPLAY=display))
                    return None
                time.sleep(0.1)
            time.sleep(WARMUP)
            watched = [viewer.pid, xvfb.pid, xvnc.pid, scene.pid, relay.pid, probe_proc.pid]

            def sample():
                return (time.monotonic(), probe.get("frames"), relay_status.get("down"), vnc.cpu_seconds(viewer.pid),
                        sum(vnc.cpu_seconds(p) for p in watched), *vnc.machine_seconds(), probe.get("lost"))
            before = sample()
            time.sleep(SECONDS)
            after = sample()
            alive = viewer.poll() is None
        finally:
            for proc in (viewer, probe_proc):
                if proc and proc.poll() is None:
                    try:
                        os.killpg(proc.pid, signal.SIGTERM) if proc is viewer else proc.terminate()
                        proc.wait(5)
                    except (subprocess.TimeoutExpired, ProcessLookupError):
                        proc.kill()
                        proc.wait()
            for proc in reversed(procs):
                vnc.stop(proc)
            if os.environ.get("BENCH_VNC_KEEP_LOGS"):
                shutil.copytree(sandbox, os.path.join(os.environ["BENCH_VNC_KEEP_LOGS"], f"{kind}-{time.time():.0f}"),
                                dirs_exist_ok=True)
        elapsed = after[0] - before[0]
        frames = after[1] - before[1]
        latencies = probe.latencies(before[0], after[0])
        if not alive or frames <= 0:
            print(f"  {kind}: viewer ended or showed nothing during the run", file=sys.stderr)
            return None
        figures = {
            "fps": frames / elapsed,
            "cpu_ms_per_frame": 1000.0 * (after[3] - before[3]) / frames,
            "bytes_per_frame": (after[2] - before[2]) / frames,
            "latency_ms": statistics.median(latencies) if latencies else float("inf"),
            "keys_lost": after[7] - before[7],
            "steal": (after[5] - before[5]) / elapsed,
            "foreign": ((after[6] - before[6]) - (after[4] - before[4])) / elapsed,
        }
        if figures["steal"] > vnc.MAX_STEAL or figures["foreign"] > MAX_FOREIGN:
            print(f"  {kind}: machine busy (steal {figures['steal']:.2f}, others {figures['foreign']:.2f} cores); "
                  "run discarded", file=sys.stderr)
            return "busy"
        return figures


def run(kind, display, xvfb):
    for _ in range(vnc.RUN_TRIES):
        figures = run_once(kind, display, xvfb)
        if figures != "busy":
            return figures
    return None


def link_rounds(link, display, xvfb, kinds):
    results = []
    attempts = 0
    while len(results) < ROUNDS and attempts < 2 * ROUNDS:
        attempts += 1
        figures = {}
        for kind in kinds:
            got = run(kind, display, xvfb)
            if got is None:
                break
            figures[kind] = got
        if len(figures) != len(kinds):
            print(f"{link} round {attempts}: incomplete, thrown away", file=sys.stderr)
            continue
        results.append(figures)
        print(f"{link} round {len(results)}: " + "; ".join(
            f"{k} {f['fps']:.1f} fps, {f['cpu_ms_per_frame']:.1f} ms cpu/frame, {f['bytes_per_frame'] / 1024:.0f} KiB/frame, "
            f"latency {f['latency_ms']:.0f} ms (keys lost {f['keys_lost']:.0f}, others {f['foreign']:.2f} cores)" for k, f in figures.items()), flush=True)
    return results


def report(link, results):
    ratios = {"fps": [], "cpu_per_frame": [], "bytes_per_frame": [], "latency": []}
    best = []
    for figures in results:
        ours = figures.get("ours")
        peers = [k for k in figures if k != "ours"]
        if not ours or not peers:
            continue
        peer = max(peers, key=lambda k: figures[k]["fps"])
        best.append(peer)
        theirs = figures[peer]
        ratios["fps"].append(theirs["fps"] / ours["fps"])
        ratios["cpu_per_frame"].append(ours["cpu_ms_per_frame"] / theirs["cpu_ms_per_frame"])
        ratios["bytes_per_frame"].append(ours["bytes_per_frame"] / theirs["bytes_per_frame"])
        ratios["latency"].append(ours["latency_ms"] / theirs["latency_ms"])
    peers_seen = f" best_peer={','.join(sorted(set(best)))}" if best else ""
    for figure, values in ratios.items():
        vnc.summary(f"vnc_{link}_{figure}", values, peers_seen)


LINK_DELAY_US = 0
LINK_RATE = 0


def main():
    global LINK_DELAY_US, LINK_RATE
    if os.geteuid() != 0:
        print("vnc_links.py: network namespaces need root; VNC link figures skipped", file=sys.stderr)
        for link in SELECTED_LINKS:
            for figure in ("fps", "cpu_per_frame", "bytes_per_frame", "latency"):
                print(f"BENCH vnc_{link}_{figure} ratio=nan (not run: needs root)")
        return
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    kinds = [k for k in ("tigervnc", "krdc", "ours") if not ONLY or k in ONLY]
    xvfb, display = vnc.start_xvfb()
    try:
        make_namespaces()
        for link in SELECTED_LINKS:
            rate, round_trip_ms = LINKS[link]
            shape(rate)
            LINK_DELAY_US = round_trip_ms * 1000 / 2
            LINK_RATE = rate
            report(link, link_rounds(link, display, xvfb, kinds))
    finally:
        remove_namespaces()
        vnc.stop(xvfb)


if __name__ == "__main__":
    main()
