#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package in a fresh, minimal Debian of this machine's release, with a day of a runner's life: installed, a day written and saved,
# upgraded from the former package, the day found again, removed: debian-test.sh BUILD-FOLDER
#
# Needs root, debootstrap and the network; cmake -DZELVIA_DEBIAN_TEST=OFF leaves it out. The machine's own apt sources serve the
# tree, too. ZELVIA_DEBIAN_TREE may name a compressed archive of such a tree, to be used or, if it is not there, made.
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
package=$(ls "$build/package"/zelvia_*.deb)
root=$work/debian

# No system folder may be mounted below a tree that is removed.
leave() {
  local place
  for place in dev/shm dev/pts dev proc; do
    ! mountpoint -q "$root/$place" || umount -l "$root/$place"
  done
  if grep -q " $root" /proc/mounts; then
    echo "still mounted below $root" >&2
    exit 1
  fi
  tidy
}
trap leave EXIT

# The Debian release that the package was built on, and the mirror that apt here uses.
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror() {
  apt-cache policy | sed -n "s,^ *[0-9]* \\([a-z]*://[^ ]*\\) $release/main .*,\\1,p" | head -n 1
}

archive=${ZELVIA_DEBIAN_TREE:-$work/tree.tar.gz}
if [ ! -e "$archive" ]; then
  debootstrap --variant=minbase "$release" "$root" "$(mirror)"
  tar -C "$root" -czf "$archive" .
  rm -rf "$root"
fi
mkdir "$root"
tar -C "$root" -xzf "$archive"
# The machine's way to its packages.
rm -rf "$root/etc/apt"
cp -a /etc/apt "$root/etc/apt"
cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
for place in /usr/share/keyrings /usr/local/share/ca-certificates /etc/ssl; do
  [ ! -d "$place" ] || { mkdir -p "$root$place" && cp -aL "$place/." "$root$place/" 2>/dev/null || true; }
done
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mount --bind /dev/pts "$root/dev/pts"
mount -t tmpfs tmpfs "$root/dev/shm"

# inside USER COMMAND...: with nothing of this shell's environment.
inside() {
  chroot --userspec="$1" "$root" /usr/bin/env -i HOME="/home/$1" USER="$1" LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "${@:2}" </dev/null
}
apt() { inside root apt-get -q -y --no-install-recommends "$@" >>"$work/apt.log" 2>&1 || {
  tail -n 30 "$work/apt.log" >&2
  return 1
}; }

# The package as it was when it copied itself into each home: with its lay-folder.sh, and without what came later.
older() {
  dpkg-deb -R "$package" "$work/older"
  sed -i 's/^Version: .*/Version: 0.9/' "$work/older/DEBIAN/control"
  rm "$work"/older/usr/bin/zelvia-strumenti "$work"/older/usr/libexec/zelvia/zelvia-{avvio,finestra,libro}
  echo vecchio | tee "$work"/older/usr/share/zelvia/{lay-folder.sh,before-start.sh,Guida.hlp} >"$work/older/usr/bin/zelvia"
  printf '#!/bin/sh\nexit 7\n' >"$work/older/usr/libexec/zelvia/zelvia"
  (cd "$work/older" && find usr -type f -exec md5sum {} + >DEBIAN/md5sums)
  dpkg-deb --root-owner-group -b "$work/older" "$root/tmp/older.deb" >/dev/null
}
# What it laid beside the diary.
lay_folder() {
  inside anna cp /usr/libexec/zelvia/zelvia /usr/share/zelvia/Guida.hlp /usr/share/zelvia/mano.cur /home/anna/Zelvia/
}

# A package of a higher version, with another guide and another program.
newer() {
  dpkg-deb -R "$package" "$work/newer"
  sed -i 's/^Version: .*/Version: 9.9.9/' "$work/newer/DEBIAN/control"
  echo nuova >>"$work/newer/usr/share/zelvia/Guida.hlp"
  printf nuovo >>"$work/newer/usr/libexec/zelvia/zelvia"
  (cd "$work/newer" && find usr -type f -exec md5sum {} + >DEBIAN/md5sums)
  dpkg-deb --root-owner-group -b "$work/newer" "$root/tmp/newer.deb" >/dev/null
}

# What the runner does on the screen, with an ordinary user's rights.
install "$source_folder/debian/tests/session" "$root/usr/local/bin/"
install -m 755 "$source_folder/tests/support/with-x11.sh" "$root/usr/local/bin/"
session() {
  if ! inside anna with-x11.sh session "$1" >"$work/session.log" 2>&1; then
    cat "$work/session.log" >&2
    return 1
  fi
}
saved() { iconv -f WINDOWS-1252 "$root/home/anna/Zelvia/ZelviaFile/prova.zlv" | tr -d '\r'; }

apt update
apt install xvfb openbox xdotool wmctrl imagemagick
inside root useradd -m anna
cp "$package" "$root/tmp/zelvia.deb"
apt install /tmp/zelvia.deb
expect "the commands" "$(inside anna bash -c 'command -v zelvia zelvia-copie zelvia-strumenti' | tr '\n' ' ')" \
  "/usr/bin/zelvia /usr/bin/zelvia-copie /usr/bin/zelvia-strumenti "

session write || expect "the first session" failed good
expect "lines of the diary" "$(saved | wc -l)" $((366 * 136))
expect "the day" "$(saved | grep -c '^"Prima corsa"$')" 1
expect "whose it is" "$(inside root stat -c %U /home/anna/Zelvia/ZelviaFile/prova.zlv)" anna
written=$(saved | sha256sum)

older
apt install --allow-downgrades /tmp/older.deb
lay_folder
expect "the diary under the former package" "$(saved | sha256sum)" "$written"

newer
apt install /tmp/newer.deb
expect "the new version" "$(inside root dpkg-query -W -f '${Version}' zelvia)" 9.9.9
session read || expect "the second session" failed good
expect "the diary shown and saved again" "$(saved | sha256sum)" "$written"
expect "what lies in the home" "$(inside anna ls /home/anna/Zelvia | LC_ALL=C sort | tr '\n' ' ')" \
  "Guida.hlp ZelviaFile mano.cur nomeload prova zelvia "
expect "what the former package had" "$(inside root dpkg -V zelvia)$(ls "$root/usr/share/zelvia/lay-folder.sh" 2>/dev/null)" ""
expect "the copy of the day" "$(inside anna zelvia-copie confronta 1 | tail -n 1)" "nessuna differenza."

apt remove zelvia
expect "the commands after the removal" "$(ls "$root"/usr/bin/zelvia* 2>/dev/null)" ""
expect "the package's folders after it" "$(ls -d "$root"/usr/libexec/zelvia "$root"/usr/share/zelvia 2>/dev/null)" ""
expect "the diary after it" "$(saved | sha256sum)" "$written"
expect "the copies after it" "$(ls "$root/home/anna/.local/state/zelvia/copie" | wc -l)" 1
# The page as it looked, for who wants to see it.
cp "$root"/home/anna/debian-*.png "$build/"
verdict
