#!/usr/bin/python3
"""The remote-assistance tunnel's cost: a screen's worth of bytes (BENCH_TUNNEL_MB, default 64)
from the terminal to a VNC client at tools/mgmt-peer, through our tunnel and, as the floor,
through `openssl s_client` carrying the same bytes over the same TLS to the same peer.

Prints
  BENCH tunnel_cpu_per_mb ratio=<ours/floor> ours=<ms>ms floor=<ms>ms     (client CPU per MB)
  BENCH tunnel_throughput ratio=<floor/ours> ours=<MB/s>MB/s floor=<MB/s>MB/s
Medians over interleaved rounds (BENCH_TUNNEL_ROUNDS, default 3).
"""
import os
import secrets
import socket
import statistics
import subprocess
import sys
import tempfile
import threading
import time

BUILD = os.path.abspath(sys.argv[1])
TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TUNNEL = os.path.join(BUILD, "tools", "tunnel", "tunnel")
SIZE = int(float(os.environ.get("BENCH_TUNNEL_MB", "64")) * 1024 * 1024)
ROUNDS = int(os.environ.get("BENCH_TUNNEL_ROUNDS", "3"))
PAYLOAD = secrets.token_bytes(SIZE)


def openssl(directory, *arguments):
    subprocess.run(["openssl", *arguments], cwd=directory, check=True, capture_output=True)


def make_certificates(directory):
    ec = ["-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes"]
    openssl(directory, "req", "-x509", *ec, "-days", "2", "-subj", "/CN=bench CA", "-keyout", "ca.key", "-out", "ca.pem")
    with open(os.path.join(directory, "ext"), "w") as ext:
        ext.write("subjectAltName=IP:127.0.0.1\n")
    openssl(directory, "req", *ec, "-subj", "/CN=peer", "-keyout", "peer.key", "-out", "peer.csr")
    openssl(directory, "x509", "-req", "-in", "peer.csr", "-CA", "ca.pem", "-CAkey", "ca.key", "-CAcreateserial",
            "-days", "2", "-extfile", "ext", "-out", "peer.pem")


class Peer:
    def __init__(self, directory):
        self.proc = subprocess.Popen(
            ["/usr/bin/python3", os.path.join(TOP, "tools", "mgmt-peer"), "--port", "0", "--assist-port", "0", "--vnc-port", "0",
             "--assist-cert", os.path.join(directory, "peer.pem"), "--assist-key", os.path.join(directory, "peer.key")],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, bufsize=1)
        self.assist_port = int(self.wait_for("ASSIST-LISTENING ").split()[1])
        self.vnc_port = int(self.wait_for("VNC-LISTENING ").split()[1])

    def wait_for(self, prefix):
        for line in self.proc.stdout:
            if line.startswith(prefix):
                return line.strip()
        raise RuntimeError("mgmt-peer: no " + prefix.strip())

    def expect(self, token):
        self.proc.stdin.write('remote {"type":2,"port":"1","token":"%s"}\n' % token)
        self.proc.stdin.flush()
        self.wait_for("EXPECT-TOKEN " + token)

    def stop(self):
        self.proc.kill()
        self.proc.wait()


def viewer(port, done):
    """The VNC client at the peer: reads the whole payload, then leaves (which ends the session)."""
    sock = socket.create_connection(("127.0.0.1", port))
    received = 0
    while received < SIZE:
        chunk = sock.recv(1 << 20)
        if not chunk:
            break
        received += len(chunk)
    done["at"] = time.monotonic()
    done["bytes"] = received
    sock.close()


def run_client(argv, stdin_data, peer):
    """Starts the client, lets a viewer read everything, returns (seconds, client CPU seconds)."""
    done = {}
    started = time.monotonic()
    proc = subprocess.Popen(argv, stdin=subprocess.PIPE if stdin_data is not None else subprocess.DEVNULL,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    if stdin_data is not None:
        feeder = threading.Thread(target=lambda: (proc.stdin.write(stdin_data), proc.stdin.flush()), daemon=True)
        feeder.start()
    reader = threading.Thread(target=viewer, args=(peer.vnc_port, done))
    reader.start()
    reader.join()
    _, status, usage = os.wait4(proc.pid, 0)
    proc.returncode = status
    if done.get("bytes") != SIZE:
        raise RuntimeError("the viewer got %s of %d bytes" % (done.get("bytes"), SIZE))
    return done["at"] - started, usage.ru_utime + usage.ru_stime


def ours(peer, directory):
    token = secrets.token_hex(8)
    peer.expect(token)
    local = socket.create_server(("127.0.0.1", 0))

    def serve():
        connection, _ = local.accept()
        connection.sendall(PAYLOAD)
        connection.shutdown(socket.SHUT_WR)
        while connection.recv(65536):
            pass
        connection.close()

    server = threading.Thread(target=serve, daemon=True)
    server.start()
    result = run_client([TUNNEL, "--src", "127.0.0.1:%d" % peer.assist_port, "--dst", "127.0.0.1:%d" % local.getsockname()[1],
                         "--token", token, "--ca", os.path.join(directory, "ca.pem")], None, peer)
    local.close()
    return result


def floor(peer, directory):
    token = secrets.token_hex(8)
    peer.expect(token)
    hello = ("NORBIX-TUNNEL 1 %s\n" % token).encode()
    # -quiet implies -ign_eof: the client stays until the peer ends the session.
    return run_client(["openssl", "s_client", "-quiet", "-connect", "127.0.0.1:%d" % peer.assist_port,
                       "-CAfile", os.path.join(directory, "ca.pem"), "-verify_return_error"], hello + PAYLOAD, peer)


def main():
    with tempfile.TemporaryDirectory() as directory:
        make_certificates(directory)
        peer = Peer(directory)
        try:
            results = {"ours": [], "floor": []}
            for _ in range(ROUNDS):
                results["ours"].append(ours(peer, directory))
                results["floor"].append(floor(peer, directory))
        finally:
            peer.stop()
    megabytes = SIZE / (1024 * 1024)
    cpu = {name: statistics.median(cpu for _, cpu in rounds) * 1000 / megabytes for name, rounds in results.items()}
    speed = {name: megabytes / statistics.median(seconds for seconds, _ in rounds) for name, rounds in results.items()}
    print(f"BENCH tunnel_cpu_per_mb ratio={cpu['ours'] / max(cpu['floor'], 1e-6):.2f} "
          f"ours={cpu['ours']:.2f}ms floor={cpu['floor']:.2f}ms", flush=True)
    print(f"BENCH tunnel_throughput ratio={speed['floor'] / speed['ours']:.2f} "
          f"ours={speed['ours']:.1f}MB/s floor={speed['floor']:.1f}MB/s", flush=True)


if __name__ == "__main__":
    main()
