"""What the start-up and management benchmarks read of a running process, and how they stop it."""
import os
import subprocess

TICK = os.sysconf("SC_CLK_TCK")


def cpu_seconds(pid):
    """User and system CPU time the process has used so far."""
    with open(f"/proc/{pid}/stat") as stat:
        fields = stat.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICK


def rss_kib(pid):
    """Resident memory in KiB (0 when the kernel does not say)."""
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmRSS:"):
                return int(line.split()[1])
    return 0


def stop(proc):
    """Asks the process to end, kills it after 5 s."""
    proc.terminate()
    try:
        proc.wait(5)
    except subprocess.TimeoutExpired:
        proc.kill()
        proc.wait()
