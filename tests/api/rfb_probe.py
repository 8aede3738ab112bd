#!/usr/bin/python3
"""A minimal VNC (RFB 3.8) viewer for the tests: security None, 32-bit true colour, raw
rectangles. Reads the whole screen once and writes it as a binary PPM.

  rfb_probe.py HOST PORT OUT.ppm
"""

import socket
import struct
import sys


def read_exactly(sock, size):
    data = bytearray()
    while len(data) < size:
        chunk = sock.recv(size - len(data))
        if not chunk:
            raise EOFError("server closed after %d of %d bytes" % (len(data), size))
        data += chunk
    return bytes(data)


def main():
    host, port, out = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    sock = socket.create_connection((host, port), timeout=30)
    version = read_exactly(sock, 12)
    if not version.startswith(b"RFB 003."):
        sys.exit("not a VNC server: %r" % version)
    sock.sendall(b"RFB 003.008\n")
    count = read_exactly(sock, 1)[0]
    if count == 0:
        length = struct.unpack(">I", read_exactly(sock, 4))[0]
        sys.exit("refused: %s" % read_exactly(sock, length).decode(errors="replace"))
    types = read_exactly(sock, count)
    if 1 not in types:
        sys.exit("no security type None among %s" % list(types))
    sock.sendall(b"\x01")
    if struct.unpack(">I", read_exactly(sock, 4))[0] != 0:
        sys.exit("security handshake failed")
    sock.sendall(b"\x01")  # ClientInit: shared
    width, height = struct.unpack(">HH", read_exactly(sock, 4))
    read_exactly(sock, 16)  # the server's pixel format: replaced below
    name_length = struct.unpack(">I", read_exactly(sock, 4))[0]
    name = read_exactly(sock, name_length).decode(errors="replace")
    print("SERVER %dx%d %s" % (width, height, name), flush=True)

    # 32 bits per pixel, depth 24, little endian, true colour, 8 bits each: red 16, green 8, blue 0.
    pixel_format = struct.pack(">BBBBHHHBBB3x", 32, 24, 0, 1, 255, 255, 255, 16, 8, 0)
    sock.sendall(struct.pack(">B3x", 0) + pixel_format)
    sock.sendall(struct.pack(">BxHi", 2, 1, 0))  # SetEncodings: raw only
    sock.sendall(struct.pack(">BBHHHH", 3, 0, 0, 0, width, height))

    frame = bytearray(width * height * 4)
    covered = bytearray(width * height)
    left = width * height
    while left > 0:
        kind = read_exactly(sock, 1)[0]
        if kind == 0:  # FramebufferUpdate
            rects = struct.unpack(">xH", read_exactly(sock, 3))[0]
            for _ in range(rects):
                x, y, w, h, encoding = struct.unpack(">HHHHi", read_exactly(sock, 12))
                if encoding != 0:
                    sys.exit("unexpected encoding %d" % encoding)
                pixels = read_exactly(sock, w * h * 4)
                for row in range(h):
                    start = ((y + row) * width + x) * 4
                    frame[start:start + w * 4] = pixels[row * w * 4:(row + 1) * w * 4]
                    for column in range(x, x + w):
                        index = (y + row) * width + column
                        if not covered[index]:
                            covered[index] = 1
                            left -= 1
            if left > 0:
                sock.sendall(struct.pack(">BBHHHH", 3, 1, 0, 0, width, height))
        elif kind == 1:  # SetColourMapEntries
            colours = struct.unpack(">xHH", read_exactly(sock, 5))[1]
            read_exactly(sock, colours * 6)
        elif kind == 2:  # Bell
            pass
        elif kind == 3:  # ServerCutText
            length = struct.unpack(">3xI", read_exactly(sock, 7))[0]
            read_exactly(sock, length)
        else:
            sys.exit("unexpected message %d" % kind)
    sock.close()

    rgb = bytearray(width * height * 3)
    for index in range(width * height):
        blue, green, red = frame[index * 4], frame[index * 4 + 1], frame[index * 4 + 2]
        rgb[index * 3:index * 3 + 3] = bytes((red, green, blue))
    with open(out, "wb") as ppm:
        ppm.write(b"P6\n%d %d\n255\n" % (width, height))
        ppm.write(rgb)
    print("FRAME", out, flush=True)


if __name__ == "__main__":
    main()
