#!/usr/bin/python3
"""Frame rate and CPU of the built-in VNC viewer against TigerVNC, KRDC and a bare libvncclient loop.

Usage: vnc.py BUILD_DIR. Starts its own Xvfb (2560x1600x24). Each run starts the push server
(bench_vnc_push_server: a 1920x1080 screen that changes entirely between any two updates), one
viewer, and counts the updates the server sent (the frames the viewer consumed) and what was
painted on the X screen (X DAMAGE). Our viewer is the real shell in the simulated terminal, with a
catalogue holding one auto-connecting VNC record.

Rounds run every viewer back to back; runs with high CPU steal or with other programs busy on the
machine are tried again (then the round is thrown away), and figures are ratios within a round
(median and min over rounds), never absolute rates:
  BENCH vnc_fps_vs_best_peer ratio=<best peer's fps / ours> ...
  BENCH vnc_cpu_per_frame_vs_best_peer ratio=<our CPU ms per frame / the best peer's> ...
  BENCH vnc_fps_vs_library ratio=<bare loop fps / ours> ...
  BENCH vnc_idle_cpu ratio=<ours / floor> ours=<%> floor=<%>   (TigerVNC on a static screen)
"""
import json
import os
import shutil
import signal
import socket
import statistics
import subprocess
import sys
import tempfile
import threading
import time

BUILD = os.path.abspath(sys.argv[1])
ROUNDS = int(os.environ.get("BENCH_VNC_ROUNDS", "3"))
DEFAULT_ROUNDS = int(os.environ.get("BENCH_VNC_DEFAULT_ROUNDS", "1"))
MEASURE_SECONDS = float(os.environ.get("BENCH_VNC_SECONDS", "5"))
WARMUP_SECONDS = float(os.environ.get("BENCH_VNC_WARMUP", "2"))
IDLE_SECONDS = float(os.environ.get("BENCH_VNC_IDLE_SECONDS", "10"))
MAX_STEAL = float(os.environ.get("BENCH_MAX_STEAL", "0.2"))  # cores
MAX_FOREIGN = float(os.environ.get("BENCH_MAX_FOREIGN", "0.5"))  # cores busy with other programs
RUN_TRIES = int(os.environ.get("BENCH_VNC_TRIES", "3"))
ONLY = os.environ.get("BENCH_VNC_ONLY", "")  # e.g. "ours,bare" while profiling
TICK = os.sysconf("SC_CLK_TCK")
FRAME_PIXELS = 1920 * 1080
PASSWORD = "bench"

SERVER = os.path.join(BUILD, "bench", "bench_vnc_push_server")
BARE = os.path.join(BUILD, "bench", "bench_vnc_bare_client")
DAMAGE = os.path.join(BUILD, "bench", "bench_damage_counter")
SHELL = os.path.join(BUILD, "src", "norbix-shell")
# Another build of the shell to compare with ours in the same rounds (kind "baseline").
BASELINE = os.environ.get("BENCH_VNC_BASELINE", "")


class Reporter:
    """Follows a child's "key=value" status lines; keeps the latest values."""

    def __init__(self, proc, prefix):
        self.pid = proc.pid
        self.values = {}
        self.ready = threading.Event()
        self.lock = threading.Lock()
        threading.Thread(target=self._follow, args=(proc, prefix), daemon=True).start()

    def _follow(self, proc, prefix):
        for line in proc.stdout:
            if line.startswith("ready"):
                self.ready.set()
            elif line.startswith(prefix):
                fields = dict(item.split("=", 1) for item in line.split()[1:])
                with self.lock:
                    self.values = {k: float(v) for k, v in fields.items()}

    def get(self, key):
        with self.lock:
            return self.values.get(key, 0.0)


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def cpu_seconds(pid):
    try:
        with open(f"/proc/{pid}/stat") as stat:
            fields = stat.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / TICK
    except OSError:
        return 0.0


def machine_seconds():
    """(steal, busy) CPU seconds of the whole machine. Interrupt time is left out of busy: the
    loopback traffic of a run is largely accounted there, not to its processes."""
    with open("/proc/stat") as stat:
        fields = [int(v) for v in stat.readline().split()[1:]]
    user, nice, system, _idle, _iowait, _irq, _softirq, steal = fields[:8]
    return steal / TICK, (user + nice + system) / TICK


def stop(proc):
    if proc.poll() is None:
        proc.send_signal(signal.SIGTERM)
        try:
            proc.wait(5)
        except subprocess.TimeoutExpired:
            proc.kill()
            proc.wait()


def start_xvfb():
    read_end, write_end = os.pipe()
    xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "2560x1600x24", "-nolisten", "tcp"],
                            pass_fds=(write_end,), stderr=subprocess.DEVNULL)
    os.close(write_end)
    with os.fdopen(read_end) as pipe:
        display = pipe.readline().strip()
    if not display:
        raise RuntimeError("Xvfb did not start")
    return xvfb, ":" + display


def our_sandbox(sandbox, port):
    data = os.path.join(sandbox, "root", "data", "norbix")
    os.makedirs(data)
    os.makedirs(os.path.join(sandbox, "home"))
    record = {"type": 1, "name": "Bench", "address": f"127.0.0.1:{port}", "password": PASSWORD,
              "fullscreen": True, "percentage": 100, "auto_connect": True, "enabled": True}
    with open(os.path.join(data, "connections.json"), "w") as catalogue:
        json.dump([record], catalogue)
    font = os.path.join(BUILD, "quarnos.ttf")
    if os.path.exists(font):
        shutil.copy(font, sandbox)
    return {"NORBIX_SIMULATE": "1", "NORBIX_ROOT": os.path.join(sandbox, "root"), "HOME": os.path.join(sandbox, "home")}


def krdc_home(sandbox):
    config = os.path.join(sandbox, ".config")
    os.makedirs(config)
    with open(os.path.join(config, "krdcrc"), "w") as rc:
        rc.write("[General]\nShowPreferencesForNewConnections=false\nWalletSupport=false\nRememberHistory=false\n"
                 "RememberSessions=false\nResizeOnConnect=true\n\n[VNC]\nQuality=0\n")
    return {"HOME": sandbox, "XDG_CONFIG_HOME": config, "XDG_DATA_HOME": os.path.join(sandbox, ".local", "share"),
            "XDG_CACHE_HOME": os.path.join(sandbox, ".cache"), "XDG_RUNTIME_DIR": sandbox}


def viewer_command(kind, port, sandbox, raw):
    """argv, extra environment and working directory of one viewer."""
    if kind in ("ours", "baseline"):
        return [SHELL if kind == "ours" else BASELINE], our_sandbox(sandbox, port), sandbox
    if kind == "bare":
        return [BARE, f"127.0.0.1:{port}", "--password", PASSWORD], {}, sandbox
    if kind == "tigervnc":
        options = ["-AutoSelect=0", "-PreferredEncoding=Raw"] if raw else []
        return (["xtigervncviewer", *options, "-passwd", os.path.join(sandbox, "passwd"), f"127.0.0.1::{port}"],
                {"HOME": sandbox}, sandbox)
    if kind == "krdc":
        return ["krdc", f"vnc://:{PASSWORD}@127.0.0.1:{port}"], krdc_home(sandbox), sandbox
    raise ValueError(kind)


def run(kind, display, damage, xvfb, raw=True, static=False, seconds=MEASURE_SECONDS):
    """run_once, tried again while the machine is too busy to measure."""
    for _ in range(RUN_TRIES):
        figures = run_once(kind, display, damage, xvfb, raw, static, seconds)
        if figures != "busy":
            return figures
    return None


def run_once(kind, display, damage, xvfb, raw=True, static=False, seconds=MEASURE_SECONDS):
    """One viewer against a fresh server; returns the run's figures or None when it was unusable."""
    # A peer may still write its settings while it is stopped: what is left is not our concern.
    with tempfile.TemporaryDirectory(prefix="vncbench-", ignore_cleanup_errors=True) as sandbox:
        port = free_port()
        server_args = [SERVER, "--port", str(port), "--password", PASSWORD, "--passwd-file", os.path.join(sandbox, "passwd"),
                       "--encoding", "raw" if raw else "client"] + (["--static"] if static else [])
        server = subprocess.Popen(server_args, stdout=subprocess.PIPE, text=True)
        status = Reporter(server, "status")
        if not status.ready.wait(10):
            stop(server)
            raise RuntimeError("push server did not start")
        argv, extra, cwd = viewer_command(kind, port, sandbox, raw)
        env = dict(os.environ, DISPLAY=display, **extra)
        env.pop("QT_QPA_PLATFORM", None)
        viewer = subprocess.Popen(argv, cwd=cwd, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  start_new_session=True)
        try:
            deadline = time.monotonic() + 30
            while status.get("updates") < 1:
                if time.monotonic() > deadline or viewer.poll() is not None:
                    print(f"  {kind}: no frame reached the viewer", file=sys.stderr)
                    return None
                time.sleep(0.05)
            time.sleep(WARMUP_SECONDS)
            before = (time.monotonic(), status.get("updates"), damage.get("pixels"), cpu_seconds(viewer.pid),
                      cpu_seconds(xvfb.pid), cpu_seconds(server.pid), *machine_seconds(), cpu_seconds(damage.pid))
            time.sleep(seconds)
            after = (time.monotonic(), status.get("updates"), damage.get("pixels"), cpu_seconds(viewer.pid),
                     cpu_seconds(xvfb.pid), cpu_seconds(server.pid), *machine_seconds(), cpu_seconds(damage.pid))
            alive = viewer.poll() is None
        finally:
            os.killpg(viewer.pid, signal.SIGTERM) if viewer.poll() is None else None
            try:
                viewer.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(viewer.pid, signal.SIGKILL)
                viewer.wait()
            stop(server)
        elapsed = after[0] - before[0]
        frames = after[1] - before[1]
        figures = {
            "fps": frames / elapsed,
            "painted": (after[2] - before[2]) / FRAME_PIXELS / elapsed,
            "cpu": (after[3] - before[3]) / elapsed,
            "xcpu": (after[4] - before[4]) / elapsed,
            "scpu": (after[5] - before[5]) / elapsed,
            "steal": (after[6] - before[6]) / elapsed,
            "foreign": ((after[7] - before[7]) - sum(after[i] - before[i] for i in (3, 4, 5, 8))) / elapsed,
            "translated": status.get("translated") > 0,
            "bpp": int(status.get("bpp")),
            "depth": int(status.get("depth")),
            "encoding": int(status.get("encoding")),
        }
        figures["cpu_ms_per_frame"] = 1000.0 * figures["cpu"] / frames if frames else float("inf")
        if not alive:
            print(f"  {kind}: viewer ended during the run", file=sys.stderr)
            return None
        if figures["translated"] or (figures["bpp"] != 32 and not static):
            print(f"  {kind}: server translated pixels (viewer bpp {figures['bpp']}); run discarded", file=sys.stderr)
            return None
        if figures["steal"] > MAX_STEAL:
            print(f"  {kind}: steal {figures['steal']:.2f} cores; run discarded", file=sys.stderr)
            return "busy"
        if figures["foreign"] > MAX_FOREIGN:
            print(f"  {kind}: other programs used {figures['foreign']:.2f} cores; run discarded", file=sys.stderr)
            return "busy"
        return figures


def selected(kinds):
    return [k for k in kinds if not ONLY or k in ONLY.split(",")]


def rounds(display, damage, xvfb, kinds, count, raw):
    results = []
    attempts = 0
    while len(results) < count and attempts < 2 * count:
        attempts += 1
        round_figures = {}
        for kind in list(kinds):
            figures = run(kind, display, damage, xvfb, raw=raw)
            if figures is None and kind not in ("ours", "bare"):
                # A peer that shows nothing here is left out of the comparison, not the whole round.
                print(f"{kind}: no usable run, left out of the comparison", file=sys.stderr)
                kinds = [k for k in kinds if k != kind]
                continue
            if figures is None:
                break
            round_figures[kind] = figures
        if len(round_figures) != len(kinds):
            print(f"round {attempts}: incomplete, thrown away", file=sys.stderr)
            continue
        results.append(round_figures)
        ours = round_figures.get("ours")
        details = []
        for kind, figures in round_figures.items():
            relative = f"{figures['fps'] / ours['fps']:.2f}x ours" if ours and ours["fps"] else f"{figures['fps']:.0f}/s"
            details.append(f"{kind} {relative} (painted/consumed {figures['painted'] / figures['fps']:.2f}, "
                           f"cpu/frame {figures['cpu_ms_per_frame'] / ours['cpu_ms_per_frame']:.2f}x ours, "
                           f"X server cpu/frame {1000 * figures['xcpu'] / figures['fps'] / (1000 * ours['xcpu'] / ours['fps']):.2f}x ours, "
                           f"encoding {figures['encoding']}, depth {figures['depth']}, steal {figures['steal']:.2f}, others {figures['foreign']:.2f})" if ours else kind)
        print(f"round {len(results)} ({'raw' if raw else 'viewer default encodings'}): " + "; ".join(details), flush=True)
    return results


def summary(name, values, extra=""):
    if not values:
        print(f"BENCH {name} ratio=nan (no usable round)")
        return
    print(f"BENCH {name} ratio={statistics.median(values):.2f} min={min(values):.2f} max={max(values):.2f} "
          f"rounds={len(values)}{extra}", flush=True)


def report(results, suffix=""):
    fps_ratios, cpu_ratios, library_ratios, best = [], [], [], []
    for figures in results:
        ours = figures["ours"]
        peers = [k for k in ("tigervnc", "krdc") if k in figures]
        if peers:
            peer = max(peers, key=lambda k: figures[k]["fps"])
            best.append(peer)
            fps_ratios.append(figures[peer]["fps"] / ours["fps"])
            cpu_ratios.append(ours["cpu_ms_per_frame"] / figures[peer]["cpu_ms_per_frame"])
        if "bare" in figures:
            library_ratios.append(figures["bare"]["fps"] / ours["fps"])
    peers_seen = f" best_peer={','.join(sorted(set(best)))}" if best else ""
    summary("vnc_fps_vs_best_peer" + suffix, fps_ratios, peers_seen)
    summary("vnc_cpu_per_frame_vs_best_peer" + suffix, cpu_ratios, peers_seen)
    if library_ratios or not suffix:
        summary("vnc_fps_vs_library" + suffix, library_ratios)


def idle(display, damage, xvfb):
    shares = {"ours": [], "floor": []}
    for _ in range(int(os.environ.get("BENCH_VNC_IDLE_ROUNDS", "1"))):
        for side, kind in (("ours", "ours"), ("floor", "tigervnc")):
            figures = run(kind, display, damage, xvfb, static=True, seconds=IDLE_SECONDS)
            if figures:
                shares[side].append(100.0 * figures["cpu"])
    if not shares["ours"] or not shares["floor"]:
        print("BENCH vnc_idle_cpu ratio=nan (no usable run)")
        return
    ours, floor = statistics.median(shares["ours"]), statistics.median(shares["floor"])
    print(f"BENCH vnc_idle_cpu ratio={ours / max(floor, 0.5):.2f} ours={ours:.2f}% floor={floor:.2f}%", flush=True)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that the servers and viewers are stopped
    xvfb, display = start_xvfb()
    damage_proc = subprocess.Popen([DAMAGE], stdout=subprocess.PIPE, text=True, env=dict(os.environ, DISPLAY=display))
    damage = Reporter(damage_proc, "damage")
    try:
        if not damage.ready.wait(10):
            raise RuntimeError("damage counter did not start")
        kinds = selected(["tigervnc", "krdc", "bare", "ours"] + (["baseline"] if BASELINE else []))
        report(rounds(display, damage, xvfb, kinds, ROUNDS, raw=True))
        if DEFAULT_ROUNDS > 0:
            default_kinds = [k for k in kinds if k not in ("bare", "baseline")]
            report(rounds(display, damage, xvfb, default_kinds, DEFAULT_ROUNDS, raw=False), suffix="_default_encodings")
        if not ONLY or "idle" in ONLY.split(","):
            idle(display, damage, xvfb)
    finally:
        stop(damage_proc)
        stop(xvfb)


if __name__ == "__main__":
    main()
