#!/usr/bin/python3
"""The USB storage scripts (tools/usb) against a private rules folder, mount table and media
folder, with recording stand-ins for udevadm and systemd-mount.

Usage: test_usb_scripts.py TOOLS_USB_DIR
"""

import os
import stat
import subprocess
import sys
import tempfile
import unittest

TOOLS = None

# A stand-in that appends its arguments (one invocation per line, fields split by \x1f) to
# $RECORD and answers "udevadm info --query=property --name=DEV" from $USB_DEVICES.
FAKE = """#!/bin/sh
name=$(basename "$0")
{ printf '%s' "$name"; for a in "$@"; do printf '\\037%s' "$a"; done; printf '\\n'; } >>"$RECORD"
if [ "$name" = udevadm ] && [ "$1" = info ]; then
    dev=${3#--name=}
    for d in $USB_DEVICES; do [ "$d" = "$dev" ] && { echo "DEVNAME=$dev"; echo "ID_BUS=usb"; exit 0; }; done
    echo "DEVNAME=$dev"; echo "ID_BUS=ata"
fi
[ -z "${FAIL:-}" ] || [ "$FAIL" != "$name $1" ] || exit 3
exit 0
"""


class Sandbox:
    def __init__(self):
        self.tmp = tempfile.TemporaryDirectory(prefix="norbix-usb-")
        self.dir = self.tmp.name
        self.rules = os.path.join(self.dir, "rules.d")
        self.media = os.path.join(self.dir, "media")
        self.mounts = os.path.join(self.dir, "mounts")
        self.record = os.path.join(self.dir, "record")
        os.makedirs(self.rules)
        os.makedirs(self.media)
        for name in ("udevadm", "systemd-mount"):
            path = os.path.join(self.dir, name)
            with open(path, "w") as handle:
                handle.write(FAKE)
            os.chmod(path, 0o755)
        self.write_mounts([])

    def write_mounts(self, rows):
        with open(self.mounts, "w") as handle:
            for device, point in rows:
                handle.write(f"{device} {point} vfat rw,nosuid 0 0\n")

    def m(self, name):
        """A path under the private media folder, as the mount table writes it."""
        return os.path.join(self.media, name)

    def run(self, script, *args, env=None):
        environment = {
            "PATH": "/usr/bin:/bin",
            "RECORD": self.record,
            "NORBIX_UDEV_RULES_DIR": self.rules,
            "NORBIX_UDEVADM": os.path.join(self.dir, "udevadm"),
            "NORBIX_SYSTEMD_MOUNT": os.path.join(self.dir, "systemd-mount"),
            "NORBIX_MEDIA_DIR": self.media,
            "NORBIX_MOUNTS": self.mounts,
        }
        environment.update(env or {})
        return subprocess.run([os.path.join(TOOLS, script), *args], env=environment,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def calls(self):
        if not os.path.exists(self.record):
            return []
        with open(self.record) as handle:
            return [line.rstrip("\n").split("\x1f") for line in handle if line.strip()]

    def rule(self):
        return os.path.join(self.rules, "99-media-automount.rules")


class EnableDisable(unittest.TestCase):
    def setUp(self):
        self.box = Sandbox()

    def tearDown(self):
        self.box.tmp.cleanup()

    def test_enable_installs_rule_and_reloads(self):
        result = self.box.run("usb_enable.sh")
        self.assertEqual(result.returncode, 0, result.stderr)
        with open(self.box.rule()) as handle:
            text = handle.read()
        self.assertEqual(stat.S_IMODE(os.stat(self.box.rule()).st_mode), 0o644)
        rules = [line for line in text.splitlines() if line and not line.startswith("#")]
        self.assertEqual(len(rules), 2)
        add, remove = rules
        for needle in ('ACTION=="add|change"', 'SUBSYSTEM=="block"', 'ENV{ID_BUS}=="usb"',
                       'ENV{ID_FS_USAGE}=="filesystem"', 'RUN+="/opt/norbix/tools/usb/usb_mount.sh add"'):
            self.assertIn(needle, add)
        self.assertIn('ACTION=="remove"', remove)
        self.assertIn('RUN+="/opt/norbix/tools/usb/usb_mount.sh remove"', remove)
        self.assertEqual(self.box.calls(), [
            ["udevadm", "control", "--reload-rules"],
            ["udevadm", "trigger", "--action=change", "--subsystem-match=block", "--property-match=ID_BUS=usb"],
        ])
        # Written beside and renamed: no temporary file stays behind.
        self.assertEqual(os.listdir(self.box.rules), ["99-media-automount.rules"])

    def test_enable_twice_gives_the_same_rule(self):
        self.box.run("usb_enable.sh")
        with open(self.box.rule()) as handle:
            first = handle.read()
        self.assertEqual(self.box.run("usb_enable.sh").returncode, 0)
        with open(self.box.rule()) as handle:
            self.assertEqual(handle.read(), first)
        self.assertEqual(os.listdir(self.box.rules), ["99-media-automount.rules"])

    def test_enable_without_rules_folder_fails_before_udev(self):
        os.rmdir(self.box.rules)
        result = self.box.run("usb_enable.sh")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("no rules folder", result.stderr)
        self.assertEqual(self.box.calls(), [])

    def test_failed_reload_is_reported_but_rule_stays(self):
        result = self.box.run("usb_enable.sh", env={"FAIL": "udevadm control"})
        self.assertNotEqual(result.returncode, 0)
        self.assertTrue(os.path.exists(self.box.rule()))

    def test_enable_takes_no_arguments_from_the_environment_of_sudo(self):
        # The defaults are the real places: without the seams the rule goes to /lib/udev/rules.d.
        with open(os.path.join(TOOLS, "usb_enable.sh")) as handle:
            text = handle.read()
        self.assertIn("rules_dir=${NORBIX_UDEV_RULES_DIR:-/lib/udev/rules.d}", text)
        self.assertIn('rule="$rules_dir/99-media-automount.rules"', text)

    def test_disable_removes_rule_and_unmounts_usb_drives_only(self):
        self.box.run("usb_enable.sh")
        os.remove(self.box.record)
        self.box.write_mounts([
            ("/dev/sda1", "/"),
            ("/dev/sdb1", self.box.m("STICK")),
            ("/dev/sdc1", self.box.m("My\\040Disk")),
            ("/dev/sdd1", self.box.m("internal")),
            ("tmpfs", self.box.m("tmp")),
            ("/dev/sde1", "/mnt/usb-elsewhere"),
        ])
        result = self.box.run("usb_disable.sh", env={"USB_DEVICES": "/dev/sdb1 /dev/sdc1 /dev/sde1"})
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertFalse(os.path.exists(self.box.rule()))
        calls = self.box.calls()
        self.assertEqual(calls[0], ["udevadm", "control", "--reload-rules"])
        umounts = [c for c in calls if c[0] == "systemd-mount"]
        self.assertEqual(umounts, [
            ["systemd-mount", "--umount", self.box.m("STICK")],
            ["systemd-mount", "--umount", self.box.m("My Disk")],
        ])

    def test_disable_when_already_off(self):
        result = self.box.run("usb_disable.sh")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.box.calls(), [["udevadm", "control", "--reload-rules"]])

    def test_disable_reports_a_drive_that_stays_mounted(self):
        self.box.write_mounts([("/dev/sdb1", self.box.m("STICK"))])
        result = self.box.run("usb_disable.sh", env={"USB_DEVICES": "/dev/sdb1", "FAIL": "systemd-mount --umount"})
        self.assertNotEqual(result.returncode, 0)


class Mount(unittest.TestCase):
    def setUp(self):
        self.box = Sandbox()

    def tearDown(self):
        self.box.tmp.cleanup()

    def mount(self, label="", uuid="", fs="vfat", dev="/dev/sdb1", gid="1234", action="add"):
        env = {"DEVNAME": dev, "ID_FS_LABEL": label, "ID_FS_UUID": uuid, "ID_FS_TYPE": fs,
               "NORBIX_MOUNT_GID": gid}
        return self.box.run("usb_mount.sh", action, env=env)

    def test_mount_point_from_label(self):
        # label, uuid, device, expected folder under the media folder
        table = [
            ("NORBIX-USB", "", "/dev/sdb1", "NORBIX-USB"),
            ("My Disk", "", "/dev/sdb1", "My_Disk"),
            ("../etc", "", "/dev/sdb1", "etc"),
            ("a/b", "", "/dev/sdb1", "a_b"),
            (".hidden", "", "/dev/sdb1", "hidden"),
            ("-rf", "", "/dev/sdb1", "rf"),
            ("a'b \"c$(id)", "", "/dev/sdb1", "a_b__c__id_"),
            ("Ünï", "", "/dev/sdb1", "n__"),
            ("", "1234-ABCD", "/dev/sdb1", "1234-ABCD"),
            ("...", "", "/dev/sdc2", "sdc2"),
            ("", "", "/dev/sdd", "sdd"),
            ("L" * 100, "", "/dev/sdb1", "L" * 64),
        ]
        for label, uuid, dev, expected in table:
            with self.subTest(label=label, uuid=uuid):
                if os.path.exists(self.box.record):
                    os.remove(self.box.record)
                result = self.mount(label=label, uuid=uuid, dev=dev)
                self.assertEqual(result.returncode, 0, result.stderr)
                calls = self.box.calls()
                self.assertEqual(len(calls), 1)
                self.assertEqual(calls[0][-2:], [dev, self.box.m(expected)])

    def test_exact_arguments_and_options(self):
        # file system, gid, expected options
        table = [
            ("vfat", "1234", "nosuid,nodev,noexec,gid=1234,dmask=0002,fmask=0113"),
            ("exfat", "77", "nosuid,nodev,noexec,gid=77,dmask=0002,fmask=0113"),
            ("ntfs3", "5", "nosuid,nodev,noexec,gid=5,dmask=0002,fmask=0113"),
            ("ext4", "1234", "nosuid,nodev,noexec"),
            ("vfat", "", "nosuid,nodev,noexec"),
        ]
        for fs, gid, options in table:
            with self.subTest(fs=fs, gid=gid):
                if os.path.exists(self.box.record):
                    os.remove(self.box.record)
                self.assertEqual(self.mount(label="STICK", fs=fs, gid=gid).returncode, 0)
                self.assertEqual(self.box.calls(), [[
                    "systemd-mount", "--no-block", "--collect", "--automount=no", "--fsck=no",
                    "--options=" + options, "/dev/sdb1", self.box.m("STICK")]])

    def test_taken_names_get_a_number(self):
        self.box.write_mounts([("/dev/sdc1", self.box.m("STICK")), ("/dev/sdd1", self.box.m("STICK-2")),
                               ("/dev/sde1", self.box.m("My\\040Disk"))])
        self.mount(label="STICK")
        self.mount(label="My Disk", dev="/dev/sdf1")
        self.mount(label="My_Disk", dev="/dev/sdg1")
        targets = [c[-1] for c in self.box.calls()]
        self.assertEqual(targets, [self.box.m("STICK-3"), self.box.m("My_Disk"), self.box.m("My_Disk")])

    def test_mounted_device_is_left_alone(self):
        self.box.write_mounts([("/dev/sdb1", self.box.m("STICK"))])
        result = self.mount(label="STICK")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(self.box.calls(), [])

    def test_remove_unmounts_the_device(self):
        result = self.mount(action="remove")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(self.box.calls(), [["systemd-mount", "--umount", "/dev/sdb1"]])

    def test_bad_calls(self):
        result = self.box.run("usb_mount.sh", "add", env={"ID_FS_LABEL": "X"})
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("DEVNAME", result.stderr)
        result = self.mount(action="frobnicate")
        self.assertEqual(result.returncode, 2)
        self.assertEqual(self.box.calls(), [])


if __name__ == "__main__":
    TOOLS = os.path.abspath(sys.argv.pop(1)) if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "usb")
    unittest.main(verbosity=1)
