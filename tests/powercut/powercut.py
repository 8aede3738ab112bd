#!/usr/bin/python3
"""Power cuts at random moments: every file the shell writes must be its old or its new version.

Two kinds of victims, each killed with SIGKILL at a random moment while it writes:
  shell   the real norbix-shell in the simulated terminal, managed by a server of ours that sends it
          catalogue after catalogue ("getConnections" with data) and settings document after settings
          document ("getSettings" with data), each one acknowledged before the next
  driver  powercut_driver, which writes every other file through the shell's own backends, one
          generation after another
After every kill, `powercut_driver check` reads what is on disk with the shell's readers; each file
must hold the version written last before the kill or the one being written at that moment.

  powercut.py --build BUILD_DIR [--kills 1000] [--seed N]
Prints one line per failure and a summary; exits 1 on any corrupt, lost or mixed file.
"""

import argparse
import asyncio
import base64
import json
import os
import random
import signal
import subprocess
import sys
import tempfile
import time

import websockets


# Subjects whose files name only part of a generation: display.ini's two screen timers, each an
# index 0-4, written one after the other (a cut between them leaves one of each document).
PART_OF = {"push-sleep": lambda g: g % 5, "push-turnoff": lambda g: g // 5 % 5}

# What the shell's server pushes; the driver's checks know these files.
SHELL_SUBJECTS = {"catalogue", "push", "push-sleep", "push-turnoff"}


class OnDisk:
    """A value a check found on disk: already what the file says, not a generation to convert."""

    def __init__(self, value):
        self.value = value

    def __eq__(self, other):
        return isinstance(other, OnDisk) and other.value == self.value

    def __hash__(self):
        return hash(("OnDisk", self.value))


def on_disk_value(value):
    return None if value is None else OnDisk(value)


class Harness:
    def __init__(self, build, rng):
        self.build = build
        self.rng = rng
        self.driver = os.path.join(build, "tests", "powercut_driver")
        self.shell = os.path.join(build, "src", "norbix-shell")
        self.failures = []
        self.kills = {"shell": 0, "driver": 0}
        self.writes = {"shell": 0, "driver": 0}
        self.strays = set()

    def environment(self, root):
        env = dict(os.environ)
        env.update(NORBIX_SIMULATE="1", NORBIX_ROOT=root, HOME=os.path.join(root, "home"),
                   QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", LANG="C.UTF-8")
        env.pop("NORBIX_COMMAND_LOG", None)
        return env

    def check(self, root):
        """{(subject, file): ("GEN", g) | ("ABSENT",) | ("CORRUPT", reason)} as the driver reads it."""
        out = subprocess.run([self.driver, "check"], env=self.environment(root), capture_output=True,
                             text=True, timeout=60, check=True).stdout
        return self.parse_check(root, out)

    async def check_async(self, root):
        return await asyncio.get_running_loop().run_in_executor(None, self.check, root)

    def parse_check(self, root, out):
        found = {}
        for line in out.splitlines():
            words = line.split(" ", 4)
            if words[0] == "FILE":
                state = words[3]
                found[(words[1], words[2])] = (state, int(words[4])) if state == "GEN" else (state, " ".join(words[4:]))
            elif words[0] == "STRAY":
                self.strays.add(os.path.relpath(line[6:], root))
        return found

    def fail(self, kind, cycle, text):
        self.failures.append(f"{kind} kill {cycle}: {text}")
        print(f"FAIL {kind} kill {cycle}: {text}", flush=True)

    def judge(self, kind, cycle, found, allowed, subjects):
        """allowed: {subject or (subject, file): set of generations (None for "not written yet";
        OnDisk(value) for a value found on disk before, taken as it is)}."""
        for (subject, file), state in found.items():
            options = allowed.get((subject, file), allowed.get(subject, {None}))
            if subject not in subjects:
                continue
            if state[0] == "CORRUPT":
                self.fail(kind, cycle, f"{file} is corrupt: {state[1]}")
            elif subject == "export":
                continue  # a count of sets, each checked whole
            elif state[0] == "ABSENT":
                if None not in options:
                    self.fail(kind, cycle, f"{file} is gone")
            else:
                part = PART_OF.get(subject)
                options = {g.value if isinstance(g, OnDisk) else g if part is None or g is None else part(g)
                           for g in options}
                if state[1] not in options:
                    self.fail(kind, cycle, f"{file} holds generation {state[1]}, expected one of "
                                           f"{sorted(g for g in options if g is not None)}")

    # --- the driver ----------------------------------------------------------------------------

    def driver_kills(self, count):
        with tempfile.TemporaryDirectory(prefix="powercut-driver-") as root:
            os.makedirs(os.path.join(root, "home"))
            os.makedirs(os.path.join(root, "data", "norbix"))
            with open(os.path.join(root, "data", "norbix", "api.ini"), "w") as seed:
                seed.write("[General]\nEnabled=false\nURL=ws://127.0.0.1:1/api/v1/ws\n")
            with open(os.path.join(root, "data", "norbix", "keyboard.ini"), "w") as seed:
                seed.write("[General]\nSensetivity=0.5\n")
            on_disk = {}  # (subject, file) -> what the check found after the last kill
            generation = 1
            for cycle in range(1, count + 1):
                process = subprocess.Popen([self.driver, "write", str(generation)], env=self.environment(root),
                                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
                time.sleep(self.rng.uniform(0.005, 0.3))
                process.send_signal(signal.SIGKILL)
                lines = process.stdout.read().splitlines()
                process.wait()
                self.kills["driver"] += 1
                done, begun = {}, {}
                for line in lines:
                    words = line.split()
                    if len(words) == 3 and words[0] in ("BEGIN", "DONE"):
                        (begun if words[0] == "BEGIN" else done)[words[1]] = int(words[2])
                        generation = max(generation, int(words[2]) + 1)
                        if words[0] == "DONE":
                            self.writes["driver"] += 1
                found = self.check(root)
                allowed = {}
                for key in found:
                    subject = key[0]
                    options = {done[subject]} if subject in done else {on_disk_value(on_disk.get(key))}
                    if subject in begun and begun[subject] != done.get(subject):
                        options.add(begun[subject])
                    allowed[key] = options
                self.judge("driver", cycle, found, allowed, {s for s, _ in found})
                for key, state in found.items():
                    if state[0] == "GEN":
                        on_disk[key] = state[1]

    # --- the shell -----------------------------------------------------------------------------

    @staticmethod
    def catalogue(generation):
        return [{"Type": "RDP", "Name": f"pc-{generation}-{i}", "Address": f"10.1.{generation % 250}.{i}",
                 "AccountUsername": "user", "AccountPassword": f"pw-{generation}"}
                for i in range(1 + generation % 4)]

    @staticmethod
    def settings(generation):
        """The settings document of a generation, as powercut_driver's pushDocument and
        pushDisplayDocument make it."""
        image = b"\x89PNG\r\n\x1a\n" + f"gen-{generation}".encode()
        return {"8021x": {"EAP": "tls", "CACert": f"ca-cert-{generation}\n", "Key": f"key-{generation}\n"},
                "Background": base64.b64encode(image).decode(),
                "Screens": {"Sleep": generation % 5, "TurnOff": generation // 5 % 5}}

    async def shell_kills(self, count):
        sessions = asyncio.Queue()

        async def session(websocket, path=None):
            await sessions.put(websocket)
            await websocket.wait_closed()

        async with websockets.serve(session, "127.0.0.1", 0, max_size=None) as server:
            port = server.sockets[0].getsockname()[1]
            with tempfile.TemporaryDirectory(prefix="powercut-shell-") as root:
                os.makedirs(os.path.join(root, "home"))
                os.makedirs(os.path.join(root, "data", "norbix"))
                with open(os.path.join(root, "data", "norbix", "api.ini"), "w") as seed:
                    seed.write(f"[General]\nEnabled=true\nURL=ws://127.0.0.1:{port}/api/v1/ws\n")
                on_disk = {}  # (subject, file) -> generation found after the last kill, as written
                generation = 1
                for cycle in range(1, count + 1):
                    acked, sent, generation = await self.shell_cycle(root, sessions, generation)
                    self.kills["shell"] += 1
                    found = await self.check_async(root)
                    allowed = {}
                    for subject, file in found:
                        if subject not in SHELL_SUBJECTS:
                            continue
                        kind = "catalogue" if subject == "catalogue" else "push"
                        allowed[(subject, file)] = {acked[kind] if kind in acked else on_disk_value(on_disk.get((subject, file))),
                                                    sent.get(kind)}
                    self.judge("shell", cycle, found, allowed, SHELL_SUBJECTS)
                    for key, state in found.items():
                        if key[0] in SHELL_SUBJECTS and state[0] == "GEN":
                            on_disk[key] = state[1]

    async def shell_cycle(self, root, sessions, generation):
        """Starts the shell, feeds it catalogues and settings documents, one of each per generation,
        until a random moment, kills it; returns the last acknowledged and the last sent generation
        of each kind and the next one to use."""
        # Started and reaped outside asyncio: its child watcher and a SIGKILL from elsewhere disagree.
        process = subprocess.Popen([self.shell, "--size", "800x600"], env=self.environment(root), cwd=self.build,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        loop = asyncio.get_running_loop()
        acked, sent = {}, {}
        try:
            websocket = await asyncio.wait_for(sessions.get(), 60)
            await websocket.send(json.dumps({"action": "auth", "id": 0}))
            killer = loop.call_later(self.rng.uniform(0.0, 0.5), process.kill)
            try:
                while True:
                    current = generation
                    generation += 1
                    for kind, action, data in (("catalogue", "getConnections", self.catalogue(current)),
                                               ("push", "getSettings", self.settings(current))):
                        sent[kind] = current
                        await websocket.send(json.dumps({"action": action, "id": current, "data": data}))
                        while True:
                            frame = json.loads(await websocket.recv())
                            if frame.get("action") == action and frame.get("id") == current:
                                acked[kind] = current
                                self.writes["shell"] += 1
                                break
            except websockets.ConnectionClosed:
                pass
            finally:
                killer.cancel()
        finally:
            process.kill()
            await loop.run_in_executor(None, process.wait)
        return acked, sent, generation


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", required=True)
    parser.add_argument("--kills", type=int, default=1000, help="in total, half of them of the shell")
    parser.add_argument("--seed", type=int, default=None)
    args = parser.parse_args()
    seed = args.seed if args.seed is not None else random.randrange(1 << 30)
    harness = Harness(os.path.abspath(args.build), random.Random(seed))
    started = time.monotonic()
    shell_kills = args.kills // 2
    asyncio.run(harness.shell_kills(shell_kills))
    harness.driver_kills(args.kills - shell_kills)
    print(f"POWERCUT seed={seed} kills={sum(harness.kills.values())} (shell {harness.kills['shell']}, "
          f"driver {harness.kills['driver']}) writes completed: shell {harness.writes['shell']}, driver "
          f"{harness.writes['driver']}; corrupt or lost: {len(harness.failures)}; stray temporary files: "
          f"{len(harness.strays)} {sorted(harness.strays)[:5]}; {time.monotonic() - started:.0f} s", flush=True)
    return 1 if harness.failures else 0


if __name__ == "__main__":
    sys.exit(main())
