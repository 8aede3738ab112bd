#!/usr/bin/python3
"""The Norbix X session script with stand-ins for openbox, wmctrl, polybar and the shell: what it
starts with which arguments and where, how it restarts a crashing shell, and that ending the
session ends everything it started.

Usage: test_session.py PATH/TO/norbix-session
"""

import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest

SESSION = None

# Records "name arg..." and the working directory, then stays until killed.
LONG_RUNNING = """#!/bin/sh
echo "$(basename "$0") $* | $(pwd)" >>"$RECORD"
echo $$ >>"$RECORD.pids"
exec sleep 600
"""
# openbox comes up a moment after it starts; wmctrl -m succeeds once it is up.
OPENBOX = """#!/bin/sh
echo $$ >>"$RECORD.pids"
sleep 0.5
echo "$(basename "$0") $* | $(pwd)" >>"$RECORD"
touch "$RECORD.wm-up"
exec sleep 600
"""
WMCTRL = """#!/bin/sh
[ "$1" = -m ] && [ -e "$RECORD.wm-up" ]
"""
# Exits with the next status of $STATUSES (one per line), 0 when they run out; "hang" stays;
# "panel" exits 0 once the panel has started.
SHELL = """#!/bin/sh
echo "norbix-shell $* | $(pwd)" >>"$RECORD"
echo $$ >>"$RECORD.pids"
status=$(head -n1 "$STATUSES" 2>/dev/null)
sed -i 1d "$STATUSES" 2>/dev/null
[ "$status" = hang ] && exec sleep 600
if [ "$status" = panel ]; then
    for i in $(seq 100); do grep -q '^polybar' "$RECORD" && exit 0; sleep 0.05; done
    exit 0
fi
exit ${status:-0}
"""


def alive(pid):
    try:
        os.kill(pid, 0)
    except ProcessLookupError:
        return False
    # A zombie child of ours is gone for the purpose of these tests.
    try:
        with open(f"/proc/{pid}/stat") as handle:
            return handle.read().split()[2] != "Z"
    except OSError:
        return False


class Session(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory(prefix="norbix-session-")
        d = self.tmp.name
        self.bin = os.path.join(d, "bin")
        self.shell_dir = os.path.join(d, "shell")
        os.makedirs(self.bin)
        os.makedirs(self.shell_dir)
        self.record = os.path.join(d, "record")
        self.statuses = os.path.join(d, "statuses")
        for name, text in (("openbox", OPENBOX), ("polybar", LONG_RUNNING), ("wmctrl", WMCTRL)):
            self.write(os.path.join(self.bin, name), text)
        self.write(os.path.join(self.shell_dir, "norbix-shell"), SHELL)

    def tearDown(self):
        for pid in self.pids():
            if alive(pid):
                os.kill(pid, signal.SIGKILL)
        self.tmp.cleanup()

    @staticmethod
    def write(path, text):
        with open(path, "w") as handle:
            handle.write(text)
        os.chmod(path, 0o755)

    def env(self):
        return {"PATH": self.bin + ":/usr/bin:/bin", "RECORD": self.record, "STATUSES": self.statuses,
                "NORBIX_SESSION_SHELL_DIR": self.shell_dir, "HOME": self.tmp.name}

    def statuses_are(self, *values):
        with open(self.statuses, "w") as handle:
            handle.write("".join(f"{v}\n" for v in values))

    def lines(self):
        if not os.path.exists(self.record):
            return []
        with open(self.record) as handle:
            return [line.rstrip("\n") for line in handle]

    def pids(self):
        if not os.path.exists(self.record + ".pids"):
            return []
        with open(self.record + ".pids") as handle:
            return [int(line) for line in handle if line.strip()]

    def run_session(self, *args, timeout=30):
        return subprocess.run([SESSION, *args], env=self.env(), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True, timeout=timeout)

    def test_starts_openbox_panel_and_shell_in_its_folder(self):
        self.statuses_are("panel")
        result = self.run_session("--page", "main")
        self.assertEqual(result.returncode, 0, result.stderr)
        lines = self.lines()
        # The window manager is up before anything else; the panel and the shell in either order.
        self.assertEqual(lines[0], "openbox --sm-disable --config-file /etc/X11/openbox/rc.xml | " + os.getcwd())
        self.assertEqual(sorted(lines[1:]), [
            "norbix-shell --page main | " + self.shell_dir,
            "polybar --quiet --config=/etc/norbix/polybar.ini norbix | " + os.getcwd(),
        ])
        # A clean exit of the shell ends the session and what it started.
        time.sleep(0.2)
        self.assertEqual([p for p in self.pids() if alive(p)], [])

    def test_crashes_are_restarted_then_a_clean_exit_ends(self):
        self.statuses_are(139, 1, 0)
        result = self.run_session()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(sum(1 for l in self.lines() if l.startswith("norbix-shell")), 3)
        self.assertIn("status 139 (crash 1 within a minute)", result.stderr)
        self.assertIn("status 1 (crash 2 within a minute)", result.stderr)

    def test_five_quick_crashes_end_the_session(self):
        self.statuses_are(*([134] * 8))
        result = self.run_session()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(sum(1 for l in self.lines() if l.startswith("norbix-shell")), 5)
        self.assertIn("giving up", result.stderr)
        time.sleep(0.2)
        self.assertEqual([p for p in self.pids() if alive(p)], [])

    def test_term_ends_shell_openbox_and_panel(self):
        self.statuses_are("hang")
        session = subprocess.Popen([SESSION], env=self.env(), stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        deadline = time.time() + 10
        while len(self.pids()) < 3 and time.time() < deadline:
            time.sleep(0.05)
        self.assertEqual(len(self.pids()), 3)
        session.send_signal(signal.SIGTERM)
        self.assertEqual(session.wait(timeout=10), 0)
        time.sleep(0.3)
        self.assertEqual([p for p in self.pids() if alive(p)], [])

    def test_without_polybar_the_shell_still_starts(self):
        os.remove(os.path.join(self.bin, "polybar"))
        self.statuses_are(0)
        env = self.env()
        env["PATH"] = self.bin + ":" + self.no_polybar_path()
        result = subprocess.run([SESSION], env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=30)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("polybar is not installed", result.stderr)
        self.assertEqual([l.split()[0] for l in self.lines()], ["openbox", "norbix-shell"])

    def test_missing_shell_folder(self):
        env = self.env()
        env["NORBIX_SESSION_SHELL_DIR"] = os.path.join(self.tmp.name, "nowhere")
        result = subprocess.run([SESSION], env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=30)
        self.assertEqual(result.returncode, 1)
        self.assertIn("no shell in", result.stderr)
        # Found out before anything is started.
        self.assertEqual(self.pids(), [])

    def no_polybar_path(self):
        """/usr/bin:/bin, or a folder of links to them without polybar when it is installed here."""
        if not any(os.path.exists(os.path.join(d, "polybar")) for d in ("/usr/bin", "/bin")):
            return "/usr/bin:/bin"
        links = os.path.join(self.tmp.name, "system")
        os.makedirs(links, exist_ok=True)
        for name in os.listdir("/usr/bin"):
            if name != "polybar" and not os.path.exists(os.path.join(links, name)):
                os.symlink(os.path.join("/usr/bin", name), os.path.join(links, name))
        return links


if __name__ == "__main__":
    SESSION = os.path.abspath(sys.argv.pop(1)) if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "..", "packaging", "session", "norbix-session")
    unittest.main(verbosity=1)
