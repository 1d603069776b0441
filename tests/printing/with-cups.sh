#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs a command with a print server of its own: with-cups.sh COMMAND [ARGUMENT...]
#
# The server listens on a socket in a folder made for it, knows one queue, "zelvia", which is the default printer, and
# lays each job as it comes, a PDF named after the number of the job, into $ZELVIA_PRINTED, and beside it a file .job with
# the job's name and its attributes, a line each. The system's own print server is not touched. More than three
# jobs that wait are too many for the spool.
set -euo pipefail

support=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
folder=$(mktemp -d /tmp/zelvia-cups-XXXXXX)
server=
finish() {
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  [ -z "$server" ] || wait "$server" 2>/dev/null || true
  rm -rf "$folder"
}
trap finish EXIT

# The server refuses to print as root.
user=$(id -un)
group=$(id -gn)
if [ "$user" = root ]; then
  user=lp
  group=lp
fi

mkdir -p "$folder"/{bin/backend,root/ppd,cache,state/certs,spool,tmp,log,printed}
chmod -R go+rx "$folder"
chmod 777 "$folder/printed"
ln -s /usr/lib/cups/daemon /usr/lib/cups/notifier "$folder/bin/"
cat > "$folder/bin/backend/zelvia" <<'END'
#!/bin/bash
# Called with nothing to name the devices, else with: job user title copies options file.
if [ $# -eq 0 ]; then
  echo 'file zelvia "Unknown" "Sheets"'
  exit
fi
printf '%s\n%s\n' "$3" "$5" > "${DEVICE_URI#zelvia:}/$1.job" && chmod 666 "${DEVICE_URI#zelvia:}/$1.job" &&
  cp "$6" "${DEVICE_URI#zelvia:}/.$1" && chmod 666 "${DEVICE_URI#zelvia:}/.$1" &&
  mv "${DEVICE_URI#zelvia:}/.$1" "${DEVICE_URI#zelvia:}/$1.pdf"
END
chmod 755 "$folder/bin/backend/zelvia"
cat > "$folder/cupsd.conf" <<END
Listen $folder/cups.sock
Browsing No
WebInterface No
DefaultAuthType None
LogLevel warn
DirtyCleanInterval 0
PreserveJobHistory Yes
MaxJobsPerPrinter 3
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
cat > "$folder/cups-files.conf" <<END
ServerRoot $folder/root
CacheDir $folder/cache
StateDir $folder/state
RequestRoot $folder/spool
TempDir $folder/tmp
AccessLog $folder/log/access
ErrorLog $folder/log/error
PageLog $folder/log/page
ServerBin $folder/bin
DataDir /usr/share/cups
Sandboxing Relaxed
User $user
Group $group
SystemGroup $(id -gn)
END

export CUPS_SERVER=$folder/cups.sock
export ZELVIA_PRINTED=$folder/printed
/usr/sbin/cupsd -f -c "$folder/cupsd.conf" -s "$folder/cups-files.conf" &
server=$!
for ((i = 0; i < 100; i++)); do
  [ ! -S "$CUPS_SERVER" ] || ! lpstat -r >/dev/null 2>&1 || break
  kill -0 "$server"
  sleep 0.1
done
/usr/sbin/lpadmin -p zelvia -E -v "zelvia:$ZELVIA_PRINTED" -P "$support/zelvia.ppd" 2>/dev/null
/usr/sbin/lpadmin -d zelvia
"$@"
