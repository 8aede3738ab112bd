#!/usr/bin/python3
"""Is this X screenshot (xwd -root) the shell's main view? Its signature: the window background
(#F3F5F9, Theme.background) covers most of the screen (about three quarters at 1280x720 with no
tiles, a third in the first-run wizard), and there is more on it than a flat colour (header,
texts, icons). A black or grey root window, openbox alone, the wizard or a crash dialog fail. Prints what it measured. Usage: screen_signature.py SCREEN.xwd"""

import struct
import sys

BACKGROUND = (0xF3, 0xF5, 0xF9)
MIN_BACKGROUND_SHARE = 0.50
MIN_COLOURS = 16


def read_xwd(path):
    """Width, height and a list of (r, g, b) from a 24/32-bit TrueColor XWD file."""
    with open(path, "rb") as handle:
        data = handle.read()
    fields = struct.unpack(">25I", data[:100])
    header_size, _, _, depth, width, height = fields[:6]
    byte_order, bits_per_pixel, bytes_per_line = fields[7], fields[11], fields[12]
    red_mask, green_mask, blue_mask = fields[14:17]
    ncolors = fields[19]
    if bits_per_pixel != 32 or depth not in (24, 32):
        raise ValueError(f"unsupported XWD: depth {depth}, {bits_per_pixel} bits per pixel")
    offset = header_size + ncolors * 12
    fmt = "<I" if byte_order == 0 else ">I"

    def shift(mask):
        return (mask & -mask).bit_length() - 1

    shifts = [shift(m) for m in (red_mask, green_mask, blue_mask)]
    pixels = []
    for y in range(height):
        row = data[offset + y * bytes_per_line: offset + y * bytes_per_line + width * 4]
        for (value,) in struct.iter_unpack(fmt, row):
            pixels.append(((value & red_mask) >> shifts[0], (value & green_mask) >> shifts[1],
                           (value & blue_mask) >> shifts[2]))
    return width, height, pixels


def judge(pixels):
    """(is it the main view, background share, number of colours)"""
    if not pixels:
        return False, 0.0, 0
    near = sum(1 for p in pixels if all(abs(a - b) <= 3 for a, b in zip(p, BACKGROUND)))
    share = near / len(pixels)
    colours = len(set(pixels))
    return share >= MIN_BACKGROUND_SHARE and colours >= MIN_COLOURS, share, colours


def main():
    try:
        width, height, pixels = read_xwd(sys.argv[1])
    except (OSError, ValueError, struct.error) as error:
        print(f"  unreadable screenshot: {error}")
        return 2
    ok, share, colours = judge(pixels)
    print(f"  screen {width}x{height}: background share {share:.2f}, {colours} colours")
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main())
