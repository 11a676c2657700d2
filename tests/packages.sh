#!/bin/sh
# Builds both packages, installs the .deb into a scratch root and runs the packaged
# program there, where nothing else is. Without root the .deb is only unpacked.
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
with_dpkg() {
    dpkg --root="$root" --force-script-chrootless "$@" >"$scratch/log" 2>&1 </dev/null ||
        { cat "$scratch/log" && exit 1; }
}
install_deb() {
    if [ "$(id -u)" -eq 0 ]; then with_dpkg --install "$deb"; else dpkg-deb -x "$deb" "$root"; fi
}
install_deb

open=$(find "$root/opt" "$root/usr" -perm /022)
[ -z "$open" ] || fail "something is writable by others: $open"
! dpkg-deb -c "$deb" | grep -v ' root/root ' || fail "something in the .deb is not root's"
closed=$(find "$root/opt" "$root/usr" -type d ! -perm 755)
[ -z "$closed" ] || fail "a directory can't be entered: $closed"
for file in opt/cnatool/cnatool usr/share/man/man8/cnatool.8.gz usr/share/doc/cnatool/automation.md \
    usr/share/doc/cnatool/FC_HBA_Conditions.txt.template usr/share/bash-completion/completions/cnatool \
    usr/share/doc/cnatool/examples/ansible/roles/cnatool/tasks/main.yml; do
    [ -s "$root/$file" ] || fail "$file is missing"
    rpm -qpl "$rpm" | grep -qx "/$file" || fail "$file is missing in the .rpm"
done
! rpm -qp --queryformat '[%{FILEUSERNAME} %{FILEMODES:perms}\n]' "$rpm" |
    grep -v '^root .....-..-.' || fail "something in the .rpm is not root's, or writable by others"
! rpm -qpR "$rpm" | grep -v -e '^/bin/sh' -e '^rpmlib' || fail "the .rpm needs more than a shell"
! dpkg-deb -f "$deb" Depends | grep . || fail "the .deb needs more than a shell"

# Nothing but the program and the example in an otherwise empty root; beside itself
# the program finds no conditions, until the administrator puts some there, which an
# upgrade and a purge leave alone.
enter=chroot
[ "$(id -u)" -eq 0 ] || enter='unshare -r chroot'
run() {
    status=0
    $enter "$@" >"$scratch/out" || status=$?
}
mkdir "$scratch/empty" && cp -r examples/blade "$home/cnatool" "$scratch/empty"
run "$scratch/empty" /cnatool --simulate --conpath blade -pci-id 19A2:0714:1C3E:11C1
grep -q -e '--> OK' "$scratch/out" || fail "in an empty root it ends with $status"
run "$root" /opt/cnatool/cnatool --simulate --silent -v 1 --qmr-mode
[ "$status" -eq 15 ] || fail "without conditions it ends with $status"
echo 'Emulex | CNA | nothex' >"$home/FC_HBA_Conditions.txt"
install_deb
[ "$(id -u)" -ne 0 ] || with_dpkg --purge cnatool
grep -q nothex "$home/FC_HBA_Conditions.txt" || fail "the administrator's conditions are gone"
