#!/usr/bin/python3
"""How sudoers_check.py finds the sudo commands in command logs and scripts: a command it misses
is a command the drop-in is never checked against."""

import json
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import sudoers_check  # noqa: E402

U = sudoers_check.TEST_USER


class Scripts(unittest.TestCase):
    def test_sudo_commands_of_a_script(self):
        table = [
            ("sudo mkdir -p /data/norbix && sudo chmod 0777 /data/norbix && sudo chown -R $USER /data/norbix",
             [["mkdir", "-p", "/data/norbix"], ["chmod", "0777", "/data/norbix"], ["chown", "-R", U, "/data/norbix"]]),
            ("sudo sed -i -e 's|<a>[0-9]\\{1,\\}</a>|<a>5</a>|g' /etc/x.xml",
             [["sed", "-i", "-e", "s|<a>[0-9]\\{1,\\}</a>|<a>5</a>|g", "/etc/x.xml"]]),
            ("lpstat -l -e | awk '{print $1}'", []),
            ("echo a; sudo reboot -f", [["reboot", "-f"]]),
            ("true || sudo shutdown -h now", [["shutdown", "-h", "now"]]),
            ("sudo systemctl suspend\n", [["systemctl", "suspend"]]),
            ("#!/bin/sh\n# sudo rm -rf /\nsudo systemctl suspend", [["systemctl", "suspend"]]),
            ("LANG=C sudo cp \"/media/my file\" ${USER}x", [["cp", "/media/my file", U + "x"]]),
            ("echo sudo rm x", []),
            ("sudo", []),
            ("sudo a|sudo b&sudo c", [["a"], ["b"], ["c"]]),
        ]
        for script, expected in table:
            with self.subTest(script=script):
                self.assertEqual(sudoers_check.script_commands(script), expected)


class LogLines(unittest.TestCase):
    def test_log_lines(self):
        table = [
            ({"program": "sudo", "args": ["nmcli", "con"], "detached": False}, [["nmcli", "con"]]),
            ({"program": "/usr/bin/sudo", "args": ["reboot", "-f"]}, [["reboot", "-f"]]),
            ({"program": "sudo", "args": []}, []),
            ({"program": "nmcli", "args": ["sudo", "x"]}, []),
            ({"program": "bash", "args": ["-c", "sudo hostname a"]}, [["hostname", "a"]]),
            ({"program": "sh", "args": ["-c", "sudo hostname a && sudo hostname b"]}, [["hostname", "a"], ["hostname", "b"]]),
            ({"program": "bash", "args": ["script.sh", "sudo"]}, []),
            ({"program": "sudo", "args": "nmcli"}, []),
            # System-bus lines share the log; they carry no program.
            ({"service": "org.freedesktop.NetworkManager", "method": "Update", "args": []}, []),
        ]
        for entry, expected in table:
            with self.subTest(entry=entry):
                self.assertEqual(sudoers_check.logged_commands(json.dumps(entry)), expected)
        for broken in ("", "{", "[1,2]", "null", '{"program": "sudo", "args": ["rm"'):
            with self.subTest(line=broken):
                self.assertEqual(sudoers_check.logged_commands(broken), [])


class Rules(unittest.TestCase):
    def test_rules_of_the_drop_in(self):
        text = ("# c\nDefaults:%norbix env_reset\n"
                "Cmnd_Alias A = /usr/bin/mkdir -p /data/norbix, \\\n    /usr/bin/chmod 0777 /data/norbix\n"
                "Cmnd_Alias B = /usr/bin/hostname ^[a-z]{0\\,61}$\n"
                "%norbix ALL = (root) NOPASSWD: A, B\n")
        self.assertEqual(sudoers_check.rule_commands(text), [
            "/usr/bin/mkdir -p /data/norbix", "/usr/bin/chmod 0777 /data/norbix", "/usr/bin/hostname ^[a-z]{0\\,61}$"])


if __name__ == "__main__":
    unittest.main(verbosity=1)
