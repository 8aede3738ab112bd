#!/bin/sh
# Mounts (add) or unmounts (remove) one USB filesystem for the automount rule that
# usb_enable.sh installs. udev runs it as root with the device's properties in the environment:
# DEVNAME, ID_FS_LABEL, ID_FS_UUID, ID_FS_TYPE.
#
# The mount point is /media/<label>: the label reduced to letters, digits, ".", "_" and "-" (a
# label is whatever the drive says, "../etc" included), else the filesystem's UUID, else the
# device's name; "-2", "-3"... when another drive already holds that name. The mount itself is a
# transient systemd unit (systemd-mount), bound to the device: pulling the drive stops it.
# FAT, exFAT and NTFS have no owners: their files belong to the group "norbix" (the terminal's
# users), writable by it. Nothing on a drive may be run, nor act as a device or set-user-ID.
#
# Test seams: NORBIX_MEDIA_DIR (/media), NORBIX_MOUNTS (/proc/self/mounts), NORBIX_SYSTEMD_MOUNT
# (systemd-mount), NORBIX_MOUNT_GID (the group "norbix" from getent).
set -eu

media=${NORBIX_MEDIA_DIR:-/media}
mounts=${NORBIX_MOUNTS:-/proc/self/mounts}
systemd_mount=${NORBIX_SYSTEMD_MOUNT:-systemd-mount}

# The name a label (or UUID, or device name) gives in the media folder; empty when nothing is left.
clean_name() {
    printf '%s' "$1" | tr -c 'A-Za-z0-9._-' '_' | sed -e 's/^[._-]*//' | cut -c1-64
}

# 0 when the path is a mount point in the mount table (paths there escape blanks as \040).
mounted_at() {
    escaped=$(printf '%s' "$1" | sed -e 's/\\/\\134/g' -e 's/ /\\040/g')
    awk -v p="$escaped" '$2 == p { found = 1 } END { exit !found }' "$mounts"
}

# 0 when the device is mounted anywhere already.
device_mounted() {
    awk -v d="$1" '$1 == d { found = 1 } END { exit !found }' "$mounts"
}

mount_point() {
    base=$(clean_name "${ID_FS_LABEL:-}")
    [ -n "$base" ] || base=$(clean_name "${ID_FS_UUID:-}")
    [ -n "$base" ] || base=$(clean_name "$(basename "$DEVNAME")")
    [ -n "$base" ] || base=usb
    candidate="$media/$base"
    n=2
    while mounted_at "$candidate"; do
        [ $n -le 99 ] || return 1
        candidate="$media/$base-$n"
        n=$((n + 1))
    done
    printf '%s\n' "$candidate"
}

mount_options() {
    options=nosuid,nodev,noexec
    case ${ID_FS_TYPE:-} in
    vfat | exfat | ntfs | ntfs3 | msdos)
        gid=${NORBIX_MOUNT_GID-$(getent group norbix | cut -d: -f3)}
        if [ -n "$gid" ]; then
            options="$options,gid=$gid,dmask=0002,fmask=0113"
        fi
        ;;
    esac
    printf '%s\n' "$options"
}

action=${1:-}
: "${DEVNAME:?usb_mount: DEVNAME not set (run from udev)}"
case $action in
add)
    # A change event for a drive that is mounted already leaves it alone.
    if device_mounted "$DEVNAME"; then
        exit 0
    fi
    target=$(mount_point) || { echo "usb_mount: no free mount point for $DEVNAME" >&2; exit 1; }
    exec "$systemd_mount" --no-block --collect --automount=no --fsck=no \
        --options="$(mount_options)" "$DEVNAME" "$target"
    ;;
remove)
    exec "$systemd_mount" --umount "$DEVNAME"
    ;;
*)
    echo "usage: usb_mount.sh add|remove (from udev, with DEVNAME set)" >&2
    exit 2
    ;;
esac
