#!/bin/sh
# start_cups.sh DIR: a print scheduler of its own in DIR, which listens on DIR/cups.sock only and prints to PDF files in the user's PDF folder.
# Its process id is left in DIR/pid. Needs root, because the PDF backend does.
set -e
dir=$1
mkdir -p "$dir/spool/tmp" "$dir/cache" "$dir/state" "$dir/log"
cat > "$dir/cups-files.conf" <<END
ServerRoot $dir
RequestRoot $dir/spool
TempDir $dir/spool/tmp
CacheDir $dir/cache
StateDir $dir/state
AccessLog $dir/log/access
ErrorLog $dir/log/error
PageLog $dir/log/page
SystemGroup root
END
cat > "$dir/cupsd.conf" <<END
Listen $dir/cups.sock
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
END
chgrp -R lp "$dir"
chmod -R g+rwX "$dir"
chmod 755 "$dir"
cupsd -f -c "$dir/cupsd.conf" -s "$dir/cups-files.conf" > "$dir/log/output" 2>&1 < /dev/null &
echo $! > "$dir/pid"

export CUPS_SERVER="$dir/cups.sock"
tries=0
until lpstat -r 2>/dev/null | grep -q "is running"; do
    tries=$((tries + 1))
    [ $tries -lt 100 ] || { cat "$dir/log/output" "$dir/log/error" >&2; exit 1; }
    sleep 0.1
done
# This renderer keeps the characters of the text in the PDF; others keep their shapes only.
lpadmin -p ptk -v cups-pdf:/ -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd -o pdftops-renderer-default=pdftocairo -E 2>/dev/null
lpadmin -d ptk
