#!/usr/bin/python3
"""Start-up time, memory and idle CPU of the shell against a minimal Qt Quick window.

Runs inside an X server (scripts/bench starts one). Prints one BENCH line per figure:
  BENCH <name> ratio=<ours/floor> ours=<value><unit> floor=<value><unit>
Ratios are medians over interleaved rounds, so machine noise hits both sides alike.

Each side keeps one terminal (data folder and home) for all its rounds and starts once unmeasured
before them: an everyday start finds what earlier starts left in the user's caches (Qt's compiled
style files and shader programs), as on a terminal in use.
"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from procstat import cpu_seconds, rss_kib, stop

BUILD = sys.argv[1]
# A single start on a shared 2-core machine varies by tens of milliseconds; 5 rounds left the
# first-frame median moving by 0.15 between runs of the same build.
ROUNDS = int(os.environ.get("BENCH_ROUNDS", "15"))
IDLE_ROUNDS = int(os.environ.get("BENCH_IDLE_ROUNDS", "2"))
IDLE_SECONDS = float(os.environ.get("BENCH_IDLE_SECONDS", "20"))

SHELL = os.path.join(BUILD, "src", "norbix-shell")
FLOOR = os.path.join(BUILD, "bench", "bench_minimal_window")


def environment(sandbox):
    env = dict(os.environ)
    env.update(NORBIX_SIMULATE="1", NORBIX_ROOT=os.path.join(sandbox, "root"), HOME=os.path.join(sandbox, "home"))
    env.pop("NORBIX_COMMAND_LOG", None)
    os.makedirs(env["HOME"], exist_ok=True)
    # The everyday start: the first-run wizard was done long ago.
    data = os.path.join(env["NORBIX_ROOT"], "data", "norbix")
    os.makedirs(data, exist_ok=True)
    open(os.path.join(data, "wizard_lock"), "w").close()
    return env


def start(program, sandbox):
    args = [program, "--first-frame-marker", "--size", "1280x720"] if program == SHELL else [program]
    began = time.monotonic()
    proc = subprocess.Popen(args, cwd=sandbox, env=environment(sandbox), stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True)
    for line in proc.stdout:
        if "norbix: first frame" in line:
            return proc, (time.monotonic() - began) * 1000.0
    raise RuntimeError(f"{program} ended without a first frame")


def prepare(program, sandbox):
    shutil.copy(os.path.join(BUILD, "quarnos.ttf"), sandbox)
    proc, _ = start(program, sandbox)  # the warm-up start
    time.sleep(2.0)
    stop(proc)


def measure(program, sandbox, idle):
    proc, first_frame = start(program, sandbox)
    try:
        time.sleep(2.0)  # let start-up work (background reads, first layouts) finish
        rss = rss_kib(proc.pid)
        share = None
        if idle:
            before, t0 = cpu_seconds(proc.pid), time.monotonic()
            time.sleep(IDLE_SECONDS)
            share = 100.0 * (cpu_seconds(proc.pid) - before) / (time.monotonic() - t0)
        return first_frame, rss, share
    finally:
        stop(proc)


def main():
    frames, memory, idle = {"ours": [], "floor": []}, {"ours": [], "floor": []}, {"ours": [], "floor": []}
    sides = (("ours", SHELL), ("floor", FLOOR))
    with tempfile.TemporaryDirectory() as ours_terminal, tempfile.TemporaryDirectory() as floor_terminal:
        sandboxes = {"ours": ours_terminal, "floor": floor_terminal}
        for side, program in sides:
            prepare(program, sandboxes[side])
        for round_no in range(max(ROUNDS, IDLE_ROUNDS)):
            for side, program in sides:
                first_frame, rss, share = measure(program, sandboxes[side], round_no < IDLE_ROUNDS)
                frames[side].append(first_frame)
                memory[side].append(rss)
                if share is not None:
                    idle[side].append(share)

    def report(name, values, unit, divisor_min=None, fmt="{:.0f}"):
        ours, floor = statistics.median(values["ours"]), statistics.median(values["floor"])
        divisor = max(floor, divisor_min) if divisor_min is not None else floor
        print(f"BENCH {name} ratio={ours / divisor:.2f} ours={fmt.format(ours)}{unit} floor={fmt.format(floor)}{unit}")

    report("startup_first_frame", frames, "ms")
    report("startup_rss", {k: [v / 1024.0 for v in vals] for k, vals in memory.items()}, "MiB", fmt="{:.1f}")
    if idle["ours"]:
        report("idle_cpu", idle, "%", divisor_min=0.5, fmt="{:.2f}")


if __name__ == "__main__":
    main()
