#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Proves in a bare Debian of its own, which it makes and takes away again, what a new user does:
#   bare_root.sh checkout         ./dev run from a checkout of the last commit
#   bare_root.sh package PACKAGE  installs the package, starts the program on a virtual desktop, uses it over the
#                                 session bus, and removes it again
# Needs root and debootstrap; takes Debian from where this machine has it from. SUITE names another Debian.
set -euo pipefail
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive
package=${2:+$(realpath "$2")}
cd "$(dirname "$0")/../.."
suite=${SUITE:-bookworm}
identifier=com.corvanta.Lumivane

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
discard() {
  pkill -P $$ || true # debootstrap, when this script is ended before it
  for process in /proc/[0-9]*; do # what the desktop left running
    if [ "$(readlink "$process/root" 2>/dev/null)" = "$root" ]; then kill -KILL "${process#/proc/}" || true; fi
  done
  for mounted in dev/pts dev/shm dev proc; do
    if mountpoint -q "$root/$mounted"; then umount -l "$root/$mounted"; fi
  done
  rm -rf --one-file-system "$root" "$root.log"
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
  echo "Making a bare Debian ($suite) in $root"
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
  timeout --foreground 900 debootstrap "${options[@]}" "$suite" "$root" "$from" >"$root.log" 2>&1 ||
    { tail "$root.log"; fail "no bare Debian"; }
  cp -a /etc/apt/apt.conf.d/. "$root/etc/apt/apt.conf.d/"
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  mount -t proc proc "$root/proc"
  mount --bind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/dev/shm"
  mount -t devpts devpts "$root/dev/pts"
  # Nothing that comes along starts a service.
  printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
  chmod +x "$root/usr/sbin/policy-rc.d"
}

check_checkout() {
  local folder=/root/lumivane output="$root/root/output"
  mkdir "$root$folder"
  git archive HEAD | tar -x -C "$root$folder"
  echo "As a new user: ./dev run"
  inside 2400 sh -c "cd $folder && ./dev run" 2>&1 | tee "$output" || fail "./dev run fails"
  for line in "Moon is " "Lunation " "Screenshot: $folder/build/panel.png"; do
    grep -q "^$line" "$output" || fail "it does not print \"$line\""
  done
  [ -s "$root$folder/build/panel.png" ] || fail "there is no screenshot"
  [ ! -e "$root/root/.config" ] || fail "it leaves something behind in the user's settings"
  echo "A new user's ./dev run works."
}

everything() { # every file that a package or its scripts can have put there, but not what they say of themselves
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./dev -o -path ./tmp -o -path ./var/log -o -path ./var/cache \
    -o -path ./var/lib/dpkg -o -path ./var/lib/apt \) -prune -o -print | sort)
}

check_package() { # package
  local dependencies
  echo "Installing what the test itself needs"
  inside 600 apt-get update -qq
  inside 600 apt-get install -y -qq --no-install-recommends xvfb xauth dbus libglib2.0-bin >/dev/null 2>&1 ||
    fail "no virtual display"

  echo "Installing $(basename "$1"), with what it depends on and no more"
  cp "$1" "$root/tmp/lumivane.deb"
  # Its dependencies first: what is there after it is removed again must be what was there before it.
  dependencies=$(dpkg-deb --field "$1" Depends | sed 's/([^)]*)//g; s/,/ /g')
  # shellcheck disable=SC2086 # one word for each package
  inside 600 apt-get install -y -qq --no-install-recommends $dependencies >/dev/null 2>&1 || fail "a dependency is missing"
  everything >"$root/tmp/before"
  inside 600 apt-get install -y -qq --no-install-recommends /tmp/lumivane.deb >"$root/tmp/log" 2>&1 ||
    { cat "$root/tmp/log"; fail "it does not install"; }

  echo "Starting it under Xvfb"
  cat >"$root/tmp/session" <<SESSION
set -eu
says() { gdbus call --session --dest "\$@"; }
owner() { says org.freedesktop.DBus --object-path / --method org.freedesktop.DBus.GetConnectionUnixProcessID $identifier; }
await() { # seconds command...
  end=\$((\$(date +%s) + \$1)); shift
  until "\$@" >/dev/null 2>&1; do
    [ "\$(date +%s)" -lt "\$end" ] || { echo "timed out waiting for: \$*"; exit 1; }
    sleep 0.2
  done
}
gone() { ! owner; }

Lumivane >/tmp/log 2>&1 &
program=\$!
await 30 owner
sleep 10
kill -0 \$program || { echo "it ended by itself"; exit 1; }
# The menu's click and the action reach the running copy; then the bus starts one by itself.
gapplication launch $identifier
owner | grep -qw \$program || { echo "the menu's click does not reach the copy that runs"; exit 1; }
gapplication action $identifier quit
wait \$program || { echo "it ended with status \$?"; exit 1; }
await 10 gone
gapplication launch $identifier
await 30 owner
gapplication action $identifier quit
await 10 gone
SESSION
  mkdir -m 700 "$root/tmp/runtime"
  inside 600 env XDG_RUNTIME_DIR=/tmp/runtime xvfb-run -a -s "-screen 0 1280x800x24" dbus-run-session -- sh /tmp/session ||
    { cat "$root/tmp/log"; fail "it does not run"; }
  if grep -v "^$" "$root/tmp/log"; then
    fail "it logs what is above"
  fi
  [ -s "$root/root/.config/autostart/$identifier.desktop" ] || fail "it does not start with the session"

  echo "Removing it"
  rm -rf "$root/root/.config" "$root/root/.cache" "$root/root/.local" # the user's, which stays
  inside 60 dpkg -P lumivane >/dev/null || fail "it can't be removed"
  everything >"$root/tmp/after"
  diff "$root/tmp/before" "$root/tmp/after" || fail "it leaves files behind"
  if inside 60 dpkg-query -W lumivane >/dev/null 2>&1; then fail "it is still known to dpkg"; fi
  echo "The package installs, runs and goes without a trace."
}

case "${1:-}" in
  checkout)
    make_root
    check_checkout
    ;;
  package)
    make_root
    check_package "$package"
    ;;
  *) echo "usage: bare_root.sh checkout | package PACKAGE" >&2; exit 2 ;;
esac
