# Sourced by run.sh and test.sh: what both need of the machine, and how it is built.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build_packages=(g++ cmake ninja-build ccache qt6-base-dev libgtest-dev fonts-dejavu-core)
display_packages=(xvfb xauth)

# Installs those of Debian's packages that are missing, as root or through sudo.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed$' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing ${missing[*]}"
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Without these ccache passes over what is compiled with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# Configures and builds a preset; what has not changed costs no time.
build() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1"
    cmake --build --preset "$1"
}

# Runs a command on a virtual display of its own.
on_virtual_display() { xvfb-run -a -s '-screen 0 1400x900x24' "$@"; }
