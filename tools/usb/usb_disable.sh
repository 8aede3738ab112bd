#!/bin/sh
# Switches USB storage off: removes the automount rule, has udev read its rules again and
# unmounts the USB filesystems mounted under /media. The shell runs it as
# "sudo /opt/norbix/tools/usb/usb_disable.sh".
#
# Test seams (sudo's env_reset keeps them out of the shell's runs): NORBIX_UDEV_RULES_DIR,
# NORBIX_UDEVADM, NORBIX_MEDIA_DIR, NORBIX_MOUNTS (the mount table), NORBIX_SYSTEMD_MOUNT.
set -eu

rules_dir=${NORBIX_UDEV_RULES_DIR:-/lib/udev/rules.d}
udevadm=${NORBIX_UDEVADM:-udevadm}
media=${NORBIX_MEDIA_DIR:-/media}
mounts=${NORBIX_MOUNTS:-/proc/self/mounts}
systemd_mount=${NORBIX_SYSTEMD_MOUNT:-systemd-mount}

rm -f "$rules_dir/99-media-automount.rules"
"$udevadm" control --reload-rules

# Mount points under the media folder whose device sits on the USB bus. The mount table escapes
# blanks in paths as \040; "systemd-mount --umount" takes the path as it is.
status=0
while read -r device mount_point _; do
    case $mount_point in "$media"/*) ;; *) continue ;; esac
    case $device in /dev/*) ;; *) continue ;; esac
    "$udevadm" info --query=property --name="$device" 2>/dev/null | grep -qx 'ID_BUS=usb' || continue
    path=$(printf '%b' "$(printf '%s' "$mount_point" | sed 's/\\\([0-7][0-7][0-7]\)/\\0\1/g')")
    "$systemd_mount" --umount "$path" || status=1
done <"$mounts"
exit $status
