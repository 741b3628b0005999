#!/bin/bash
# Test of the Debian package: package.sh CHECKOUT BUILD. Packs BUILD, installs the package into an empty root, plays a
# tour with the program there and removes it again. Exits with 77 (skipped) if this is not possible.
set -euo pipefail
checkout=$1 build=$2

# Only root may give files to root; another user becomes root in a user namespace.
if [[ $EUID -ne 0 ]]; then
    unshare --map-root-user true 2>/dev/null || { echo 'SKIPPED: neither root nor user namespaces here'; exit 77; }
    exec unshare --map-root-user bash "$0" "$@"
fi

room=$(mktemp -d /tmp/zpt.XXXXXX)
trap 'rm -rf -- "$room"' EXIT
root=$room/root
admin=$root/var/lib/dpkg
home=$root/usr/lib/zavelpos

fail() { printf 'FAIL: %s\n' "$*" >&2; exit 1; }
dpkg_there() {
    dpkg --root="$root" --log="$room/dpkg.log" "$@" >"$room/dpkg.out" 2>&1 || fail "dpkg $*: $(<"$room/dpkg.out")"
}
contents() { (cd "$root" && find . -path ./var/lib/dpkg -prune -o -printf '%p %y %m %u %l\n' | LC_ALL=C sort); }

# Copies this machine's package list into the root, so that dpkg really checks the dependencies.
install -d "$admin"/{info,updates,triggers} "$root/usr/bin" "$root/usr/share/applications"
cp /var/lib/dpkg/status "$admin/status"
dpkg-query -W -f '${binary:Package}\n' | (cd "$admin/info" && sed 's/$/.list/' | xargs touch)
touch "$root/usr/bin/neighbour" "$root/usr/share/applications/neighbour.desktop"
contents >"$room/before"

cpack --config "$build/CPackConfig.cmake" -B "$room/package" -D CPACK_THREADS=0 >"$room/cpack.out" 2>&1 ||
    fail "$(<"$room/cpack.out")"
package=("$room"/package/*.deb)
dpkg-deb --control "${package[0]}" "$room/control"
scripts=$(cd "$room/control" && ls | grep -vxE 'control|md5sums' || true)
[[ -z $scripts ]] || fail "the package wants to run or keep something: $scripts"

echo 'Installing'
dpkg_there --install "${package[0]}"
dpkg_there --verify zavelpos
[[ ! -s $room/dpkg.out ]] || fail "not as packed: $(<"$room/dpkg.out")"
for file in share/applications/zavelpos.desktop share/icons/hicolor/48x48/apps/zavelpos.png \
    share/icons/hicolor/scalable/apps/zavelpos.svg share/metainfo/example.zavelpos.zavelpos.metainfo.xml \
    share/man/man1/zavelpos.1.gz share/man/man1/zavel-setup.1.gz share/doc/zavelpos/copyright; do
    [[ -s $root/usr/$file ]] || fail "/usr/$file is missing"
done
# The program looks for the same folders that the build has beside it.
for folder in html plugins languages help; do
    [[ ! -d $build/bin/$folder ]] ||
        (cd "$build/bin/$folder" && find . -type f) | while read -r file; do
            [[ -e $home/$folder/$file ]] || fail "$folder/$file is not installed"
        done
done

while read -r binary; do
    if ldd "$binary" | grep -F 'not found'; then fail "$binary misses a library"; fi
    if ldd "$binary" | sed 's,/plugins/\.\./,/,' | grep -F zavel- | grep -vF "=> $home/lib/"; then fail "$binary takes layers from elsewhere"; fi
    paths=$(readelf -d "$binary" | sed -n 's/.*R\(UN\)\?PATH.*\[\(.*\)\]/\2/p')
    [[ $paths =~ ^\$ORIGIN(/lib|/../lib)?$ ]] || fail "$binary looks for libraries in '$paths'"
done < <(find "$home" -type f \( -name '*.so' -o -perm -u+x \))

status=0
ZAVEL_DB_PASSWORD='' "$root/usr/bin/zavel-setup" status --host "$ZAVEL_TEST_PGHOST" --port "$ZAVEL_TEST_PGPORT" \
    --user "$ZAVEL_TEST_PGUSER" --database "nothing_$$" >"$room/status.out" 2>&1 || status=$?
[[ $status -eq 3 ]] || fail "zavel-setup status ended with $status: $(<"$room/status.out")"

echo 'Serving a table with the installed program'
mkdir "$room/installed"
ln -s "$root/usr/bin" "$room/installed/bin"
ln -s "$build/tour" "$room/installed/tour"
page=$home/html/index.html
touch -a -d 2000-01-01 "$page"
LD_DEBUG=files LD_DEBUG_OUTPUT=$room/loaded "$checkout/scripts/tour" dine-in --build "$room/installed" \
    --out "$room/tour" >"$room/tour.out" 2>&1 || fail "$(<"$room/tour.out")"
cat "$room"/loaded.* | sed -n 's/.*calling init: //p' >"$room/inits"
if grep -F /libzavel- "$room/inits" | grep -vF "$home/lib/"; then fail 'the program took layers from elsewhere'; fi
for plugin in "$home"/plugins/*.so; do
    [[ ! -e $plugin ]] || grep -qxF "$plugin" "$room/inits" || fail "$plugin was not loaded"
done
[[ $(stat -c %x "$page") != 2000-01-01* || $(findmnt -no OPTIONS -T "$page") == *noatime* ]] ||
    fail 'nobody read the dashboard page'

echo 'Removing'
dpkg_there --remove zavelpos
contents | diff "$room/before" - || fail 'the package left something behind'
! dpkg --root="$root" -s zavelpos >/dev/null 2>&1 || fail 'dpkg still knows the package'
