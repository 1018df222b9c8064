# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Debian packages that a script needs. To be sourced.

# as_root COMMAND...: runs a command that only root may run, through sudo where that is what it takes.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Only root can run '$*', and there is no sudo." >&2
        return 1
    fi
}

# require_packages PACKAGE...: installs those of the packages that are missing, and says so; silent if there are none.
require_packages() {
    local package missing=()
    for package in "$@"; do
        if [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    if [ "${#missing[@]}" -eq 0 ]; then
        return
    fi

    echo "Installing what is missing: ${missing[*]}" >&2
    as_root apt-get update -qq >&2
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}
