#!/bin/sh
# Switches USB storage on: installs the udev rule that mounts removable filesystems under
# /media/<label> (through usb_mount.sh) and has udev read its rules again; drives already plugged
# in are mounted at once. The shell runs it as "sudo /opt/norbix/tools/usb/usb_enable.sh" and
# takes the rule file's presence as "enabled".
#
# NORBIX_UDEV_RULES_DIR and NORBIX_UDEVADM point the script at another rules folder and udevadm
# (tests); sudo's env_reset keeps them out of the shell's runs.
set -eu

rules_dir=${NORBIX_UDEV_RULES_DIR:-/lib/udev/rules.d}
udevadm=${NORBIX_UDEVADM:-udevadm}
rule="$rules_dir/99-media-automount.rules"
helper=/opt/norbix/tools/usb/usb_mount.sh

[ -d "$rules_dir" ] || { echo "usb_enable: no rules folder $rules_dir" >&2; exit 1; }

# Written beside the rule and renamed over it: udev never reads half a rule.
tmp=$(mktemp "$rules_dir/.99-media-automount.rules.XXXXXX")
trap 'rm -f "$tmp"' EXIT
cat >"$tmp" <<RULES
# Norbix: USB storage enabled (usb_enable.sh writes this file, usb_disable.sh removes it).
# Filesystems on USB drives are mounted under /media/<label> by a transient systemd mount unit:
# a mount made by udev itself would stay in udevd's private mount namespace.
ACTION=="add|change", SUBSYSTEM=="block", ENV{ID_BUS}=="usb", ENV{ID_FS_USAGE}=="filesystem", ENV{ID_FS_TYPE}!="", RUN+="$helper add"
ACTION=="remove", SUBSYSTEM=="block", ENV{ID_BUS}=="usb", ENV{ID_FS_USAGE}=="filesystem", RUN+="$helper remove"
RULES
chmod 0644 "$tmp"
mv -f "$tmp" "$rule"
trap - EXIT

"$udevadm" control --reload-rules
"$udevadm" trigger --action=change --subsystem-match=block --property-match=ID_BUS=usb
