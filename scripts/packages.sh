# SPDX-License-Identifier: GPL-3.0-or-later
# To be sourced: install_packages puts in place what is missing of packaging/debian-packages.txt.

install_packages() {
    local list missing as_root=()
    list="$(dirname "${BASH_SOURCE[0]}")/../packaging/debian-packages.txt"
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This is not Debian: there is no apt. Please install what $list lists by hand," >&2
        echo "then use the CMake presets (cmake --workflow --preset release)." >&2
        return 1
    fi
    missing="$(missing_packages "$list")"
    [[ -z $missing ]] && return

    echo "== Installing" $missing
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "Installing packages takes root or sudo, and there is neither. Please have" >&2
            echo "these installed: "$missing >&2
            return 1
        fi
        as_root=(sudo)
    fi
    if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install --yes --no-install-recommends \
            -o DPkg::Lock::Timeout=600 $missing; then
        echo "These packages could not be installed: "$missing >&2
        return 1
    fi
}

missing_packages() {
    local wanted installed
    wanted="$(sed -e 's/#.*//' "$1" | tr -s '[:space:]' '\n' | sed '/^$/d' | sort -u)"
    # dpkg-query fails where it does not know a package; what it knows counts.
    installed="$(dpkg-query --show --showformat '${binary:Package} ${db:Status-Status}\n' \
        $wanted 2>/dev/null | sed -n 's/^\([^ :]*\).* installed$/\1/p' | sort -u)" || true
    comm -23 <(echo "$wanted") <(echo "$installed")
}
