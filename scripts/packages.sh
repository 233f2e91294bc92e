# SPDX-License-Identifier: GPL-3.0-or-later
# To be sourced: "install_packages build tour" installs what is missing of
# packaging/debian-build.txt and packaging/debian-tour.txt. No package is ever removed.

install_packages() {
    local lists=("${@/%/.txt}") wanted left_out as_root=()
    lists=("${lists[@]/#/packaging/debian-}")
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This is not Debian: there is no apt. Please install what these files list by hand," >&2
        echo "then use the CMake presets (cmake --workflow --preset release):" "${lists[@]}" >&2
        return 1
    fi
    choose_packages
    if ((${#wanted[@]} > 0)); then
        echo "== Installing" "${wanted[@]}"
        if ((EUID != 0)); then
            if ! command -v sudo >/dev/null; then
                echo "Installing packages takes root or sudo, and there is neither. Please have" >&2
                echo "these installed:" "${wanted[@]}" >&2
                return 1
            fi
            as_root=(sudo)
        fi
        if ! "${as_root[@]}" apt-get update || ! choose_packages ||
            ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes \
                --no-remove --no-install-recommends -o DPkg::Lock::Timeout=600 "${wanted[@]}"; then
            echo "These packages could not be installed:" "${wanted[@]}" >&2
            return 1
        fi
    fi
    for package in "${left_out[@]}"; do
        echo "Left out: $package, which conflicts with what is installed." \
            "Skipped without it: $(tests_with "$package")"
    done
}

# Sets `wanted` to the packages to install, and `left_out` to those that conflict with what is
# installed. In CI nothing is left out.
choose_packages() {
    local package
    wanted=()
    left_out=()
    for package in $(missing_packages); do
        if [[ ${CI:-} != true && -n $(tests_with "$package") ]] && conflicts "$package"; then
            left_out+=("$package")
        else
            wanted+=("$package")
        fi
    done
}

# What apt does not know yet is not taken for a conflict.
conflicts() {
    apt-cache show "$1" &>/dev/null &&
        ! apt-get --simulate install --no-remove --no-install-recommends "$1" &>/dev/null
}

tests_with() { sed -n "s/^$1 *# *//p" "${lists[@]}"; }

missing_packages() {
    local packages installed
    packages="$(sed -e 's/#.*//' "${lists[@]}" | tr -s '[:space:]' '\n' | sed '/^$/d' | sort -u)"
    # dpkg-query fails where it does not know a package; what it knows counts.
    installed="$(dpkg-query --show --showformat '${binary:Package} ${db:Status-Status}\n' \
        $packages 2>/dev/null | sed -n 's/^\([^ :]*\).* installed$/\1/p' | sort -u)" || true
    comm -23 <(echo "$packages") <(echo "$installed")
}
