#!/usr/bin/python3
"""The install test's screen check: XWD files of both byte orders read back pixel for pixel, and
the main view's signature tells the shell from an empty or foreign screen."""

import os
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import screen_signature  # noqa: E402

SCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "screen_signature.py")
BG = screen_signature.BACKGROUND


def xwd(width, height, pixels, byte_order=0, bits_per_pixel=32, depth=24, name=b"xwdump\\0"):
    """An XWD file as "xwd -root" writes it for a TrueColor screen (pixels row by row)."""
    bytes_per_line = width * bits_per_pixel // 8
    header = struct.pack(">25I", 100 + len(name), 7, 2, depth, width, height, 0, byte_order, 32,
                         byte_order, 32, bits_per_pixel, bytes_per_line, 4, 0xFF0000, 0xFF00, 0xFF,
                         8, 256, 0, width, height, 0, 0, 0)
    fmt = "<I" if byte_order == 0 else ">I"
    body = b"".join(struct.pack(fmt, (r << 16) | (g << 8) | b) for r, g, b in pixels)
    return header + name + body


def screen(background_share, colours=40, width=40, height=20):
    """A screen with that share of background and distinct other colours."""
    total = width * height
    n_bg = int(total * background_share)
    others = [((i * 37) % 256, (i * 91) % 256, (i * 13) % 256) for i in range(colours)]
    return [BG] * n_bg + [others[i % len(others)] for i in range(total - n_bg)]


class ReadXwd(unittest.TestCase):
    def test_both_byte_orders_read_back(self):
        pixels = [(1, 2, 3), (250, 128, 0), BG, (0, 0, 0), (255, 255, 255), (9, 8, 7)]
        for order in (0, 1):
            with self.subTest(byte_order=order), tempfile.NamedTemporaryFile(suffix=".xwd") as f:
                f.write(xwd(3, 2, pixels, byte_order=order))
                f.flush()
                self.assertEqual(screen_signature.read_xwd(f.name), (3, 2, pixels))

    def test_unsupported_and_broken_files_are_refused(self):
        cases = {
            "16 bits": xwd(2, 1, [(0, 0, 0)] * 2, bits_per_pixel=16)[:100 + 8],
            "truncated header": b"\\0" * 40,
            "empty": b"",
        }
        for what, data in cases.items():
            with self.subTest(what), tempfile.NamedTemporaryFile(suffix=".xwd") as f:
                f.write(data)
                f.flush()
                run = subprocess.run([sys.executable, SCRIPT, f.name], stdout=subprocess.PIPE, text=True)
                self.assertEqual(run.returncode, 2, run.stdout)


class Judge(unittest.TestCase):
    def test_signatures(self):
        table = [
            ("main view", screen(0.76), True),
            ("just enough background", screen(0.51), True),
            ("the first-run wizard's share", screen(0.33), False),
            ("background only (shell drew nothing)", screen(1.0, colours=1), False),
            ("black root window", [(0, 0, 0)] * 800, False),
            ("openbox grey", [(0x4C, 0x59, 0x66)] * 800, False),
            ("a busy foreign screen", screen(0.0, colours=500), False),
            ("background a little off (antialiasing)", [(0xF1, 0xF6, 0xFB)] * 500 + screen(0.0)[:300], True),
            ("no pixels", [], False),
        ]
        for what, pixels, expected in table:
            with self.subTest(what):
                self.assertEqual(screen_signature.judge(pixels)[0], expected)

    def test_exit_status(self):
        for pixels, status in ((screen(0.76), 0), ([(0, 0, 0)] * 800, 1)):
            with tempfile.NamedTemporaryFile(suffix=".xwd") as f:
                f.write(xwd(40, 20, pixels))
                f.flush()
                run = subprocess.run([sys.executable, SCRIPT, f.name], stdout=subprocess.PIPE, text=True)
                self.assertEqual(run.returncode, status, run.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=1)
