#!/usr/bin/env bash
# Runs the two commands of the README on a bare Debian 12: debootstrap's smallest variant with nothing but sudo and git,
# a user who may use sudo, and the project as that user clones it from what is committed here. Needs root. Of this
# machine it has the kernel, the network, and the mirror and proxy that apt is set to.
#   scripts/bare_machine.sh                   ./run --headless, then ./test
#   scripts/bare_machine.sh COMMAND...        these commands in their order, such as './test --quick --no-windows'
#   --root FOLDER     where the machine is made; one that an earlier try kept there is used again, with today's project
#   --keep            leaves the machine there
#   --cache FOLDER    keeps what apt downloads and ccache compiles for the next try, which is from nothing otherwise
set -euo pipefail
script=$(realpath "$0")
cd "$(dirname "$script")/.."
. scripts/prepare.sh

root=
keep=no
cache=
alone=no  # whether nobody else sees this script's mounts and processes
commands=()
while [ $# -gt 0 ]; do
    case "$1" in
        --root) root=$(realpath "${2:?}") && shift ;;
        --keep) keep=yes ;;
        --cache) cache=$(realpath "${2:?}") && shift ;;
        --alone) alone=yes ;;
        -h | --help)
            sed -n '2,9s/^# \{0,1\}//p' "$script"
            exit 0
            ;;
        -*)
            echo "bare_machine.sh: unknown argument $1; see scripts/bare_machine.sh --help" >&2
            exit 2
            ;;
        *) commands+=("$1") ;;
    esac
    shift
done
[ ${#commands[@]} -gt 0 ] || commands=('./run --headless' ./test)
[ "$(id -u)" -eq 0 ] || {
    echo "bare_machine.sh makes the root of a system and mounts into it, so it needs root." >&2
    exit 2
}

user=user
user_cache=/home/$user/.cache
proxies=(http_proxy https_proxy no_proxy)

is_made() {
    [ -e "$root/etc/made_by_bare_machine" ]
}

in_root() {
    local name environment=(PATH=/usr/sbin:/usr/bin:/sbin:/bin)
    for name in "${proxies[@]}"; do [ -z "${!name:-}" ] || environment+=("$name=${!name}"); done
    env --ignore-environment "${environment[@]}" chroot "$root" "$@" </dev/null
}

as_user() {
    local IFS=,
    in_root su --login --whitelist-environment="${proxies[*]}" --command "$1" $user
}

# quietly COMMAND...: shows what the command says only where it fails
quietly() {
    local log=$root/var/log/bare_machine.log
    "$@" >"$log" 2>&1 || {
        cat "$log" >&2
        return 1
    }
}

make_machine() {
    local sources mirror
    sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
        'Origin: Debian' | grep -E ' bookworm(-updates|-security)? ' | sort -u) || {
        echo "apt knows no mirror of Debian 12 here; apt-get update may help." >&2
        return 1
    }
    mirror=$(sed -nE 's/^deb (.*) bookworm main$/\1/p' <<<"$sources" | head -n 1)
    mkdir -p "$root/var/log"
    quietly debootstrap --variant=minbase ${cache:+"--cache-dir=$cache/archives"} bookworm "$root" "$mirror"
    echo "$sources" >"$root/etc/apt/sources.list"
    apt-config dump --no-empty | sed -nE '/^Acquire::(https?::|Retries|Check-)/p' >"$root/etc/apt/apt.conf.d/90machine"
    printf '127.0.0.1 localhost\n127.0.1.1 %s\n' "$HOSTNAME" >"$root/etc/hosts"
}

mount_folders() {
    mount -t proc proc "$root/proc"
    mount -t sysfs -o ro sysfs "$root/sys"
    mount -t devpts -o newinstance,ptmxmode=0666,mode=0620,gid=5 devpts "$root/dev/pts"
    mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
    [ -z "$cache" ] || mount --bind "$cache/archives" "$root/var/cache/apt/archives"
}

furnish_machine() {
    quietly in_root apt-get update
    quietly in_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends sudo git
    in_root useradd --create-home --shell /bin/bash $user
    echo "$user ALL=(ALL) NOPASSWD: ALL" >"$root/etc/sudoers.d/$user"
    touch "$root/etc/made_by_bare_machine"
}

share_compilations() {
    in_root install -d -o $user -g $user $user_cache $user_cache/ccache
    mount --bind "$cache/ccache" "$root$user_cache/ccache"
    in_root chown -R $user: $user_cache/ccache
}

bring_project() {
    git bundle create --quiet "$root/project.bundle" HEAD
    as_user 'if [ -d qorplus ]; then
            cd qorplus && git fetch -q /project.bundle HEAD && git reset -q --hard FETCH_HEAD
        else
            git -c advice.detachedHead=false clone -q /project.bundle qorplus
        fi'
}

results=()
failures=0
try() {
    local command=$1 begin=$EPOCHSECONDS status=0 log=$root/var/log/try.log
    echo "== $command"
    as_user "cd qorplus && $command" 2>&1 | tee "$log" || status=$?
    [ "$status" -eq 0 ] || failures=$((failures + 1))
    results+=("$command: $(tail -n 1 "$log"); ended with $status after $((EPOCHSECONDS - begin)) s")
    echo "== ${results[-1]}"
}

if [ "$alone" = no ]; then
    prepare_packages debootstrap
    [ -n "$root" ] || root=$(mktemp -d /var/tmp/bare_machine.XXXXXX)
    mkdir -p "$root" ${cache:+"$cache/archives" "$cache/ccache"}
    is_made || [ -z "$(ls -A "$root")" ] || {
        echo "$root is neither empty nor a machine that an earlier try kept." >&2
        exit 2
    }
    chmod 755 "$root"
    # Its mounts and processes end with it, however it ends.
    unshare --mount --pid --fork --kill-child --mount-proc "$script" --alone --root "$root" ${cache:+--cache "$cache"} \
        "${commands[@]}" &
    leave() {
        if kill -KILL $! 2>/dev/null; then wait; fi
        if [ "$keep" = yes ]; then echo "The machine: $root"; else rm -rf --one-file-system "$root"; fi
    }
    trap leave EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    wait $!
    exit
fi

if is_made; then
    mount_folders
else
    make_machine
    mount_folders
    furnish_machine
fi
[ -z "$cache" ] || share_compilations
bring_project
for command in "${commands[@]}"; do try "$command"; done
printf '%s\n' "${results[@]}"
[ "$failures" -eq 0 ]
