#!/bin/sh
# Builds both packages, installs the .deb into a scratch root and runs the
# packaged program from there. Without root the .deb is only unpacked.
set -eu
cd "$(dirname "$0")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
home=$root/opt/cnatool
fail() { echo "packages: $1" >&2 && exit 1; }

umask 027
script/package "$scratch"
set -- "$scratch"/*.deb && deb=$1
set -- "$scratch"/*.rpm && rpm=$1

umask 022
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status"
install_deb() {
    if [ "$(id -u)" -ne 0 ]; then
        dpkg-deb -x "$deb" "$root" && return
    fi
    dpkg --root="$root" --force-depends --force-script-chrootless --install "$deb" \
        >"$scratch/log" 2>&1 </dev/null || { cat "$scratch/log" && exit 1; }
}
install_deb

open=$(find "$root/opt" "$root/usr" -perm /022)
[ -z "$open" ] || fail "something is writable by others: $open"
! dpkg-deb -c "$deb" | grep -v ' root/root ' || fail "something in the .deb is not root's"
closed=$(find "$root/opt" "$root/usr" -type d ! -perm 755)
[ -z "$closed" ] || fail "a directory can't be entered: $closed"
for file in opt/cnatool/cnatool usr/share/man/man8/cnatool.8 \
    usr/share/man/man5/FC_HBA_Conditions.txt.5 usr/share/bash-completion/completions/cnatool; do
    [ -s "$root/$file" ] || fail "$file is missing"
    rpm -qpl "$rpm" | grep -qx "/$file" || fail "$file is missing in the .rpm"
done
rpm -qp --configfiles "$rpm" | grep -qx /opt/cnatool/FC_HBA_Conditions.txt ||
    fail "the conditions are not configuration in the .rpm"
! rpm -qp --queryformat '[%{FILEUSERNAME} %{FILEMODES:perms}\n]' "$rpm" |
    grep -v '^root .....-..-.' || fail "something in the .rpm is not root's, or writable by others"

# The example of the man page, from where it lies.
(cd "$root/usr/share/doc/cnatool/examples" &&
    "$home/cnatool" --simulate --conpath blade -pci-id 19A2:0714 >"$scratch/log") ||
    fail "the example ends with $?"
grep -q -e '--> OK' "$scratch/log" || fail "the example checks nothing"

# Beside itself the program finds the packaged conditions; a broken line ends
# with its status, and an upgrade leaves the administrator's file alone.
status=0 && "$home/cnatool" --simulate --silent || status=$?
[ "$status" -eq 13 ] || fail "the packaged conditions end with $status"
echo 'Emulex | CNA | nothex' >>"$home/FC_HBA_Conditions.txt"
[ "$(id -u)" -ne 0 ] || install_deb
status=0 && "$home/cnatool" --simulate --silent || status=$?
[ "$status" -eq 55 ] || fail "after an upgrade the broken conditions end with $status"
