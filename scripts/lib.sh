# Shared by ./run, ./test and .ci/run: the packages that a machine needs, and how progress is shown.
# shellcheck shell=bash

step() { printf '==> %s\n' "$*" >&2; }

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Runs a command quietly; shows what it printed when it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    if [[ $status -ne 0 ]]; then
        tail -n 100 "$log" >&2
    fi
    rm -f "$log"
    return "$status"
}

as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "installing packages needs root or sudo; install by hand: ${missing[*]}"
    fi
}

# Installs those of Debian's packages $@ that are missing. Does nothing, and asks no network, when all are there.
need_packages() {
    local package missing=()
    command -v dpkg-query >/dev/null || die "needs Debian 12 or one of its derivatives"
    for package in "$@"; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0
    step "Installing ${missing[*]}"
    # The list of packages may be older than the packages, or not there at all.
    quietly as_root apt-get update || step "apt-get update failed; trying with what is known"
    quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" ||
        die "could not install: ${missing[*]}"
}

# What is installed for what, named by those who source this.
# shellcheck disable=SC2034
{
    native_packages=(cmake ninja-build g++ ccache qtbase5-dev qtbase5-private-dev libcli11-dev libkainjow-mustache-dev
        googletest)
    test_packages=(clang python3 python3-selenium chromium chromium-driver zsh)
    fuzz_packages=(clang libclang-rt-14-dev)
    windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 dpkg-dev make perl python3 patch xz-utils qt5-qmake
        qtbase5-dev-tools ca-certificates nsis wixl)
    lint_packages=(git clang-format clang-tidy shellcheck clang-tools-14 libc++-14-dev libwine-dev)
    mutation_packages=(git lld python3)
}

# Configures the preset $1 where that is still to be done, and builds the targets $2….
build() {
    local preset=$1
    shift
    if [[ ! -f build/$preset/build.ninja ]]; then
        step "Configuring build/$preset"
        quietly cmake --preset "$preset" || die "configuring build/$preset failed"
    fi
    step "Building build/$preset"
    quietly cmake --build --preset "$preset" ${1:+--target "$@"} || die "building build/$preset failed"
}
