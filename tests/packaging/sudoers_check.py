#!/usr/bin/python3
"""Checks the package's sudoers drop-in against the commands the shell really runs with sudo.

The commands come from command logs (NORBIX_COMMAND_LOG files: one JSON object per line with
"program" and "args"), from the bash -c scripts in them, and from shell scripts the shell leaves
for other programs to run (suspend.sh). Each distinct sudo command is then asked of the real sudo,
"sudo -n -l -U <member of norbix> COMMAND...", with the drop-in as the only policy: /etc/sudoers,
/etc/passwd and /etc/group are replaced by private copies in a mount namespace of our own, so the
machine's files are never touched. sudo's own matching (paths by inode, regular expressions,
wildcards) is what decides, not a copy of it.

It fails when
- visudo rejects the file,
- the shell ran a sudo command the drop-in refuses,
- a command of the refused table (tests/packaging/sudo_refused.txt) is allowed,
- a rule of the drop-in is used by no command at all (dead or mistyped rules).

Usage: sudoers_check.py --sudoers FILE [--logs DIR|FILE]... [--script FILE]... [--refused FILE]
       [--min-commands N]
"""

import argparse
import glob
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

TEST_USER = "norbixterm"
TEST_UID = 61999
GROUP = "norbix"
GROUP_GID = 61998

# Operators that end one simple command in a bash -c script.
SEPARATORS = {"&&", "||", ";", "|", "&", "\n"}


def script_commands(script, user=TEST_USER):
    """The sudo commands of a shell script text, as argument lists without "sudo".

    Splits the script at &&, ||, ;, | and line ends the way the shell does (quotes kept together),
    expands $USER and ${USER}, and keeps the simple commands that start with sudo."""
    lexer = shlex.shlex(script, posix=True, punctuation_chars=";&|\n")
    lexer.whitespace = " \t\r"
    lexer.whitespace_split = True
    lexer.commenters = "#"
    commands, current = [], []
    for token in lexer:
        if token in SEPARATORS or set(token) <= set(";&|\n"):
            commands.append(current)
            current = []
            continue
        current.append(token.replace("${USER}", user).replace("$USER", user))
    commands.append(current)
    result = []
    for words in commands:
        # Leading variable assignments (VAR=value sudo ...) do not change the command sudo sees.
        while words and re.match(r"^[A-Za-z_][A-Za-z0-9_]*=", words[0]):
            words = words[1:]
        if len(words) >= 2 and words[0] == "sudo":
            result.append(words[1:])
    return result


def logged_commands(line):
    """The sudo commands of one command-log line (argument lists without "sudo")."""
    try:
        entry = json.loads(line)
    except ValueError:
        return []
    if not isinstance(entry, dict) or "program" not in entry:
        return []
    program, args = entry.get("program", ""), entry.get("args", [])
    if not isinstance(args, list):
        return []
    if os.path.basename(program) == "sudo":
        return [list(args)] if args else []
    if os.path.basename(program) in ("bash", "sh") and len(args) >= 2 and args[0] == "-c":
        return script_commands(args[1])
    return []


def collect(log_paths, scripts):
    """Distinct sudo commands from the logs and scripts, with where each was first seen."""
    seen = {}
    files = []
    for path in log_paths:
        if os.path.isdir(path):
            files += sorted(glob.glob(os.path.join(path, "*.jsonl")))
        elif os.path.exists(path):
            files.append(path)
    for name in files:
        with open(name, encoding="utf-8", errors="replace") as handle:
            for line in handle:
                for command in logged_commands(line):
                    seen.setdefault(tuple(command), os.path.basename(name))
    for name in scripts:
        with open(name, encoding="utf-8") as handle:
            for command in script_commands(handle.read()):
                seen.setdefault(tuple(command), os.path.basename(name))
    return seen, files


def read_table(path):
    """Commands of a table file: one shell-quoted command line per line, # for comments."""
    rows = []
    with open(path, encoding="utf-8") as handle:
        for number, line in enumerate(handle, 1):
            line = line.strip()
            if line and not line.startswith("#"):
                rows.append((number, shlex.split(line)))
    return rows


def rule_commands(sudoers_text):
    """The command paths of every rule in the drop-in's Cmnd_Alias lines, with their arguments,
    as sudo prints them back in "sudo -l" (one entry per rule)."""
    text = sudoers_text.replace("\\\n", " ")
    rules = []
    for line in text.splitlines():
        match = re.match(r"\s*Cmnd_Alias\s+\w+\s*=\s*(.*)$", line)
        if not match:
            continue
        # Commas separate rules unless escaped.
        for part in re.split(r"(?<!\\),", match.group(1)):
            part = part.strip()
            if part:
                rules.append(part)
    return rules


class PrivateSudo:
    """The real sudo with only the drop-in as its policy, inside a private mount namespace."""

    def __init__(self, sudoers_path, stubs=()):
        self.sudoers_path = sudoers_path
        # Programs of ours that the machine running the check has not installed (/opt/norbix/...):
        # empty executables stand in for them inside the namespace, on a private /opt.
        self.stubs = [p for p in stubs if p.startswith("/opt/") and not os.path.exists(p)]
        self.dir = tempfile.mkdtemp(prefix="norbix-sudoers-")

    def __enter__(self):
        return self

    def __exit__(self, *exc):
        shutil.rmtree(self.dir, ignore_errors=True)

    def _files(self):
        with open("/etc/passwd", encoding="utf-8") as handle:
            passwd = handle.read()
        with open("/etc/group", encoding="utf-8") as handle:
            group = handle.read()
        passwd = "".join(l for l in passwd.splitlines(True) if not l.startswith(TEST_USER + ":"))
        group = "".join(l for l in group.splitlines(True)
                        if not l.startswith(GROUP + ":") and not l.startswith(TEST_USER + ":"))
        passwd += f"{TEST_USER}:x:{TEST_UID}:{TEST_UID}::/nonexistent:/usr/sbin/nologin\n"
        group += f"{TEST_USER}:x:{TEST_UID}:\n{GROUP}:x:{GROUP_GID}:{TEST_USER}\n"
        with open(self.sudoers_path, encoding="utf-8") as handle:
            dropin = handle.read()
        # The drop-in is all of the policy: root keeps its line so that "sudo -l -U" may be asked.
        sudoers = ("Defaults env_reset\n"
                   "Defaults secure_path=\"/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin\"\n"
                   "root ALL=(ALL:ALL) ALL\n" + dropin)
        for name, text, mode in (("passwd", passwd, 0o644), ("group", group, 0o644), ("sudoers", sudoers, 0o440)):
            path = os.path.join(self.dir, name)
            with open(path, "w", encoding="utf-8") as handle:
                handle.write(text)
            os.chmod(path, mode)

    def check(self, commands):
        """For each command (argument list), the line sudo printed when it allows it, else None."""
        self._files()
        requests = os.path.join(self.dir, "requests.json")
        with open(requests, "w", encoding="utf-8") as handle:
            json.dump(commands, handle)
        inner = os.path.join(self.dir, "inner.sh")
        stub_lines = ""
        if self.stubs:
            stub_lines = "mkdir -p /opt && mount -t tmpfs norbix-stubs /opt\n" + "".join(
                f"mkdir -p {shlex.quote(os.path.dirname(p))} && printf '#!/bin/sh\\n' >{shlex.quote(p)} && chmod 0755 {shlex.quote(p)}\n"
                for p in self.stubs)
        # One namespace for all questions: bind the private files, then one sudo -l per command.
        with open(inner, "w", encoding="utf-8") as handle:
            handle.write(f"""set -e
mount --make-rprivate /
for f in passwd group sudoers; do mount --bind "{self.dir}/$f" "/etc/$f"; done
{stub_lines}
exec /usr/bin/python3 - "{requests}" <<'EOF'
import json, subprocess, sys
commands = json.load(open(sys.argv[1]))
answers = []
env = {{"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C"}}
for command in commands:
    run = subprocess.run(["sudo", "-n", "-l", "-U", "{TEST_USER}", "--"] + command,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=env, cwd="/")
    # Allowed: exit 0 and the matched command printed. Refused: exit 1 and nothing said.
    # Anything else (a program sudo cannot find, a policy it cannot read) is an error.
    out, err = run.stdout.decode(errors="replace").strip(), run.stderr.decode(errors="replace").strip()
    if run.returncode == 0 and out and not err:
        answers.append(["allowed", out])
    elif run.returncode == 1 and not out and not err:
        answers.append(["refused", ""])
    else:
        answers.append(["error", "exit %d: %s %s" % (run.returncode, out, err)])
json.dump(answers, sys.stdout)
EOF
""")
        run = subprocess.run(["unshare", "--mount", "--", "sh", inner], stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE)
        if run.returncode != 0:
            raise RuntimeError("private sudo failed: " + run.stderr.decode(errors="replace"))
        return json.loads(run.stdout)


def visudo(path):
    run = subprocess.run(["visudo", "-c", "-s", "-f", path], stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return run.returncode == 0, run.stdout.decode(errors="replace").strip()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sudoers", required=True)
    parser.add_argument("--logs", action="append", default=[])
    parser.add_argument("--script", action="append", default=[])
    parser.add_argument("--refused")
    parser.add_argument("--min-commands", type=int, default=1)
    options = parser.parse_args()

    failures = []
    ok, text = visudo(options.sudoers)
    print("visudo:", text)
    if not ok:
        failures.append("visudo rejects " + options.sudoers)

    seen, files = collect(options.logs, options.script)
    print(f"{len(files)} command logs, {len(seen)} distinct sudo commands")
    if len(seen) < options.min_commands:
        failures.append(f"only {len(seen)} distinct sudo commands were logged (at least {options.min_commands} "
                        "expected): run the whole suite first, it writes the logs")
    refused = read_table(options.refused) if options.refused else []

    commands = [list(c) for c in seen] + [c for _, c in refused]
    with open(options.sudoers, encoding="utf-8") as handle:
        rules = rule_commands(handle.read())
    programs = [rule.split()[0] for rule in rules] + [c[0] for c in commands if c]
    with PrivateSudo(options.sudoers, programs) as sudo:
        answers = sudo.check(commands)
    allowed_lines = []
    for command, (status, text) in zip(commands[:len(seen)], answers[:len(seen)]):
        where = seen[tuple(command)]
        if status == "refused":
            failures.append(f"not allowed by the drop-in: sudo {shlex.join(command)}   (from {where})")
        elif status == "error":
            failures.append(f"sudo could not judge: sudo {shlex.join(command)}: {text}")
        else:
            allowed_lines.append(text)
    for (number, command), (status, text) in zip(refused, answers[len(seen):]):
        if status == "allowed":
            failures.append(f"{options.refused}:{number}: must be refused but is allowed: sudo {shlex.join(command)}")
        elif status == "error":
            failures.append(f"{options.refused}:{number}: sudo could not judge: sudo {shlex.join(command)}: {text}")

    # Every rule's program must be used by some allowed command (sudo -l names the program it
    # matched, not the rule, so a program with several rules counts once).
    used_programs = {line.split()[0] for line in allowed_lines if line}
    for rule in rules:
        program = rule.split()[0]
        if program not in used_programs and not any(os.path.samefile(program, p) for p in used_programs
                                                      if os.path.exists(program) and os.path.exists(p)):
            failures.append(f"rule used by no command the shell ran: {rule}")

    for failure in failures:
        print("FAIL:", failure)
    print(f"{len(seen)} commands allowed and {len(refused)} refused as they should be" if not failures
          else f"{len(failures)} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
