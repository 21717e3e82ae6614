# shellcheck shell=bash
# SPDX-License-Identifier: MIT
#
# Sourced by ./dev: makes sure that the packages in tools/packages.txt are installed.

# The lines of the named groups; each is a package or several alternatives.
packages_of() {
    local group='' line
    while IFS= read -r line; do
        line=${line%%#*}
        line=${line%"${line##*[![:space:]]}"}
        case $line in
            '') ;;
            \[*\]) group=${line:1:-1} ;;
            *) [[ " $* " != *" $group "* ]] || printf '%s\n' "$line" ;;
        esac
    done <tools/packages.txt | sort -u
}

# The lines on standard input of which no alternative is installed.
not_installed() {
    local lines line name installed found
    mapfile -t lines
    # dpkg-query fails when it does not know one of the names; what it knows it prints all the same.
    # shellcheck disable=SC2016 # The names are dpkg's.
    installed=" $(printf '%s\n' "${lines[@]}" | tr -s ' |' '\n' \
        | xargs dpkg-query -W -f '${db:Status-Status}:${Package} ' 2>/dev/null || true)"
    for line in "${lines[@]}"; do
        found=''
        for name in ${line//|/ }; do
            [[ $installed != *" installed:$name "* ]] || found=1
        done
        [[ -n $found ]] || printf '%s\n' "$line"
    done
}

# For each line on standard input, the first alternative that the package lists know.
choose() {
    local line name chosen
    while IFS= read -r line; do
        chosen=''
        for name in ${line//|/ }; do
            if [[ -z $chosen ]] && apt-cache show --no-all-versions "$name" >/dev/null 2>&1; then
                chosen=$name
            fi
        done
        # Leave an unknown package to apt-get, which reports it.
        printf '%s\n' "${chosen:-${line%% *}}"
    done
}

as_root() {
    if ((EUID == 0)); then
        env DEBIAN_FRONTEND=noninteractive "$@"
    elif command -v sudo >/dev/null; then
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    else
        printf 'This needs root: %s\n' "$*" >&2
        return 1
    fi
}

# Succeeds if package lists exist and are younger than a day.
has_fresh_lists() {
    [[ -n $(find /var/lib/apt/lists -maxdepth 1 -name '*Packages*' -mtime -1 -print -quit 2>/dev/null) ]]
}

# Asks whether to install packages, unless nobody can answer or the answer is already known.
may_install() {
    local answer
    [[ ${VESK_PACKAGES:-} != install && -t 0 ]] || return 0
    read -r -p 'Install them? [Y/n] ' answer && [[ ${answer,,} =~ ^(y|yes|)$ ]]
}

# need <group>...: installs missing packages of these groups; exits if it cannot.
need() {
    [[ ${VESK_PACKAGES:-} != skip ]] || return 0
    local missing names
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        printf 'This is no system with apt. Install what stands for these Debian packages, then set VESK_PACKAGES=skip:\n' >&2
        packages_of "$@" | sed 's/^/  /' >&2
        exit 1
    fi
    missing=$(packages_of "$@" | not_installed)
    [[ -n $missing ]] || return 0
    printf '== These packages are missing:\n%s\n' "$missing"
    may_install || exit 1
    has_fresh_lists || as_root apt-get update || exit 1
    mapfile -t names < <(choose <<<"$missing")
    # Another run may be installing packages right now.
    as_root apt-get install --yes --no-install-recommends -o DPkg::Lock::Timeout=600 "${names[@]}" || exit 1
}
