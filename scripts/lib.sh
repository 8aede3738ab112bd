# Shared by scripts/run, scripts/test and scripts/bench: packages, configure, build.
# shellcheck shell=bash

NORBIX_TOP=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Every Debian package the build, the tests and the simulated terminal need.
NORBIX_PACKAGES=(
    build-essential cmake ninja-build ccache pkg-config fonts-dejavu-core
    qtbase5-dev qtdeclarative5-dev qtdeclarative5-dev-tools libqt5websockets5-dev qttools5-dev qttools5-dev-tools
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-templates2
    qml-module-qtquick-layouts qml-module-qtqml-models2 qml-module-qtquick-shapes
    libssl-dev openssl libvncserver-dev libxdamage-dev libxcb-shm0-dev
    xvfb xauth x11-xserver-utils
    freerdp2-x11 freerdp2-shadow-x11 winpr-utils x11vnc tigervnc-standalone-server
    python3 python3-websockets
    xserver-xorg-core xserver-xorg-video-dummy xautolock psmisc procps tzdata
    network-manager python3-dbusmock iputils-ping iw
    x11-xkb-utils xkb-data xinput openbox feh libx11-dev usbutils
    pulseaudio pulseaudio-utils alsa-utils libasound2-plugins cups cups-daemon cups-client cups-ipp-utils dbus
    qml-module-qtquick-virtualkeyboard qtvirtualkeyboard-plugin qml-module-qt-labs-folderlistmodel
    sudo lshw debootstrap x11-apps x11-utils xdotool
)

# The peers and tools scripts/bench compares the VNC viewer with.
NORBIX_BENCH_PACKAGES=(tigervnc-viewer krdc tigervnc-standalone-server libxtst-dev iproute2)

norbix_install_packages() {
    local missing=()
    local pkg
    for pkg in "${NORBIX_PACKAGES[@]}" "$@"; do
        dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "== Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -ne 0 ] && sudo=(sudo)
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# norbix_build BUILD_DIR [cmake options...]
norbix_build() {
    local dir=$1
    shift
    cmake -S "$NORBIX_TOP" -B "$dir" -G Ninja "$@" >/dev/null || return 1
    cmake --build "$dir" -- -j"$(nproc)"
}
