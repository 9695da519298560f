#!/usr/bin/env bash
# Asks the desktop what it makes of an installed workbench. Usage: desktop.sh PREFIX
set -euo pipefail
share=$1/share

desktop-file-validate "$share/applications/quillon-workbench.desktop"

# A desktop of its own that knows nothing but the system's types and ours.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -p "$home/mime/packages"
cp "$share/mime/packages/quillon.xml" "$home/mime/packages"
update-mime-database "$home/mime"

# is NAME TYPE: a file called NAME is a TYPE.
is() {
    local type
    printf '{}' >"$home/$1"
    type=$(XDG_DATA_HOME=$home gio info -a standard::content-type "$home/$1" | sed -n 's/^ *standard::content-type: //p')
    [ "$type" = "$2" ] || { echo "$1 is taken for $type, not for $2" >&2; return 1; }
}
is survey.mvdb application/x-quillon-dictionary
is survey.lsd.json application/x-quillon-run-configuration
is areas.wip.json application/x-quillon-hierarchy
is other.json application/json

# What the entry names is there: the types, the program, the picture.
for type in $(sed -n 's/^MimeType=//p' "$share/applications/quillon-workbench.desktop" | tr ';' ' '); do
    grep -q "type=\"$type\"" "$share/mime/packages/quillon.xml" || { echo "$type is unknown" >&2; exit 1; }
done
test -x "$1/bin/quillon-workbench"
rsvg-convert -w 128 "$share/icons/hicolor/scalable/apps/quillon-workbench.svg" -o "$home/icon.png"
echo "The desktop knows the workbench and its files."
