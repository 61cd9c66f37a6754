#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Proves in a bare Debian of its own, which it makes and takes away again, what a new user does:
#   bare_root.sh checkout RELEASE  ./dev run from a checkout of the last commit
#   bare_root.sh package RELEASE   ./dev package from one, into dist/RELEASE; then, in a Debian that is bare again,
#                                  installs the package, uses it as debian/tests/session does, and purges it
# Needs root and debootstrap; takes Debian from where this machine has it from.
set -euo pipefail
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive
cd "$(dirname "$0")/../.."
release=${2:-}
folder=/root/lumivane

if [ "$(id -u)" -ne 0 ] || ! command -v debootstrap >/dev/null; then
  echo "Skipped: a bare Debian is made by root, with debootstrap."
  exit 0
fi

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

root=$(mktemp -d /var/tmp/lumivane-root.XXXXXX)
chmod 755 "$root"
enter() {
  mount -t proc proc "$root/proc"
  mount --bind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/dev/shm"
  mount -t devpts devpts "$root/dev/pts"
}
leave() {
  for process in /proc/[0-9]*; do # what the desktop left running
    if [ "$(readlink "$process/root" 2>/dev/null)" = "$root" ]; then kill -KILL "${process#/proc/}" || true; fi
  done
  for mounted in dev/pts dev/shm dev proc; do
    if mountpoint -q "$root/$mounted"; then umount -l "$root/$mounted"; fi
  done
  rm -rf --one-file-system "$root"
}
discard() {
  pkill -P $$ || true # debootstrap, when this script is ended before it
  leave
  rm -rf "$root.bare" "$root.log"
}
trap discard EXIT

inside() { # seconds command...
  timeout --foreground --kill-after=10 "$1" chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
    LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "${@:2}" </dev/null
}

mirror() {
  # shellcheck disable=SC2016 # apt's own variable
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' 'Component: main' | head -n 1
}

make_root() {
  echo "Making a bare Debian ($release) in $root"
  local from
  from=$(mirror)
  if [ -z "$from" ]; then
    # Without its lists apt does not know which of its sources is Debian.
    apt-get -o DPkg::Lock::Timeout=300 update -qq
    from=$(mirror)
  fi
  [ -n "$from" ] || fail "none of apt's sources is Debian"
  local options=(--variant=minbase)
  [[ $from != https:* ]] || options+=(--include=ca-certificates)
  timeout --foreground 900 debootstrap "${options[@]}" "$release" "$root" "$from" >"$root.log" 2>&1 ||
    { tail "$root.log"; fail "no bare Debian"; }
  local file
  for file in /etc/apt/apt.conf.d/*; do # this machine's settings; what packages bring they bring there too
    dpkg-query -S "$file" >/dev/null 2>&1 || cp "$file" "$root/etc/apt/apt.conf.d/"
  done
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  # Nothing that comes along starts a service.
  printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
  chmod +x "$root/usr/sbin/policy-rc.d"
}

checkout() { # ./dev's command: runs it in a checkout of the last commit
  mkdir "$root$folder"
  git archive HEAD | tar -x -C "$root$folder"
  echo "As a new user: ./dev $1"
  inside 3000 sh -c "cd $folder && ./dev $1" 2>&1 || fail "./dev $1 fails"
}

check_checkout() {
  local output="$root/root/output"
  enter
  checkout run | tee "$output"
  for line in "Moon is " "Lunation " "Screenshot: $folder/build/panel.png"; do
    grep -q "^$line" "$output" || fail "it does not print \"$line\""
  done
  [ -s "$root$folder/build/panel.png" ] || fail "there is no screenshot"
  [ ! -e "$root/root/.config" ] || fail "it leaves something behind in the user's settings"
  echo "A new user's ./dev run works on a bare $release."
}

everything() { # every file that a package or its scripts can have put there, but not what they say of themselves
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./dev -o -path ./tmp -o -path ./var/log -o -path ./var/cache \
    -o -path ./var/lib/dpkg -o -path ./var/lib/apt \) -prune -o -print | sort)
}

depends() { # on what, as control files have it
  inside 600 apt-get satisfy -y -qq --no-install-recommends "$1" >/dev/null 2>&1 || fail "this can't be had: $1"
}

check_package() {
  local output=dist/$release package
  cp -a "$root" "$root.bare"
  enter
  checkout package
  rm -rf "$output"
  mkdir -p "$output"
  cp "$root$folder"/dist/* "$output"
  leave
  mv "$root.bare" "$root"
  enter
  package=$(echo "$output"/lumivane_*.deb)
  cp "$package" debian/tests/session "$root/tmp"
  echo "Installing $package, with what it and its test depend on and no more"
  inside 600 apt-get update -qq
  depends "$(sed -n 's/^Depends: @, //p' debian/tests/control)"
  # Its dependencies first: what is there after it is purged must be what was there before it.
  depends "$(dpkg-deb --field "$package" Depends)"
  everything >"$root/tmp/before"
  inside 600 apt-get install -y -qq --no-install-recommends "/tmp/${package##*/}" >"$root/tmp/log" 2>&1 ||
    { cat "$root/tmp/log"; fail "it does not install"; }
  echo "Using it"
  inside 300 /tmp/session || fail "it does not run"
  echo "Purging it"
  inside 60 dpkg -P lumivane >/dev/null || fail "it can't be purged"
  everything >"$root/tmp/after"
  diff "$root/tmp/before" "$root/tmp/after" || fail "it leaves files behind"
  if inside 60 dpkg-query -W lumivane >/dev/null 2>&1; then fail "it is still known to dpkg"; fi
  echo "The package installs, runs and goes without a trace."
}

case "${1:-} $release" in
  checkout\ ?*)
    make_root
    check_checkout
    ;;
  package\ ?*)
    make_root
    check_package
    ;;
  *) echo "usage: bare_root.sh checkout|package RELEASE" >&2; exit 2 ;;
esac
