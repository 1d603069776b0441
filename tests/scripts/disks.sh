# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A small disk that is plugged in and out at "$disk", where this machine allows that. To be sourced after check.sh.

disk=$work/chiavetta
image=$work/chiavetta-immagine
mkdir "$disk"

# plug KIND [ro]: the disk, whose files stay when it is plugged in again.
plugged=
device=
plug() {
  local way=${2:-rw}
  case $1 in
    exfat)
      device=$(losetup -f --show "$image" 2>/dev/null) || return 1
      mount.exfat-fuse -o "$way" "$device" "$disk" >/dev/null 2>&1 || { losetup -d "$device" && return 1; }
      ;;
    ext2) mount -o "loop,$way" -t ext2 "$image" "$disk" 2>/dev/null || return 1 ;;
  esac
  plugged=yes
}
unplug() {
  [ "$plugged" ] || return 0
  umount "$disk" && plugged=
  [ -z "$device" ] || losetup -d "$device"
  device=
}
trap 'unplug; tidy' EXIT

# format KIND SIZE
format() {
  rm -f "$image"
  truncate -s "$2" "$image"
  case $1 in
    exfat) mkfs.exfat -c 4K -b 64K "$image" >/dev/null 2>&1 ;;
    ext2) mkfs.ext2 -q "$image" 2>/dev/null ;;
  esac
}
