#!/usr/bin/env bash
# The Debian package: builds it from the build folder given, checks that it
# holds every file where the system looks for it, then unpacks it into a
# scratch root and runs both programs from there, as an ordinary user whose
# program folder cannot be written: nothing may be written under usr/, and
# what the programs write must land in the user's folders.
# Exit 77 (skipped) when the packaging tools are missing.
set -uo pipefail
build=$(cd "${1:?usage: package_test.sh BUILD_DIR}" && pwd)

missing=()
for tool in cpack dpkg-deb dpkg-shlibdeps file desktop-file-validate appstreamcli; do
    command -v "$tool" >/dev/null 2>&1 || missing+=("$tool")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "SKIPPED: packaging tools missing (${missing[*]}); install them with scripts/setup debian-packaging-packages.txt"
    exit 77
fi

failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

scratch=$(mktemp -d /tmp/combwise-package-XXXXXX)
trap 'chmod -R u+w "$scratch" 2>/dev/null; rm -rf "$scratch"' EXIT
chmod 755 "$scratch"

# --- the package and its files ---------------------------------------------
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
deb="$scratch/combwise_${version}_$(dpkg --print-architecture).deb"
if ! (cd "$build" && cpack -G DEB -B "$scratch" >"$scratch/cpack.log" 2>&1) || [ ! -f "$deb" ]; then
    cat "$scratch/cpack.log"
    echo "FAIL: cpack made no $(basename "$deb")"
    exit 1
fi
echo "built $(basename "$deb") ($(du -k "$deb" | cut -f1) KiB)"

dpkg-deb -c "$deb" | awk '{ print substr($1, 1, 1), $6 }' | sed 's| \./| /|' >"$scratch/contents"
for path in /usr/bin/combwise /usr/bin/combwise-cli \
    /usr/share/combwise/english3.txt /usr/share/combwise/mean3456.txt /usr/share/combwise/all.col \
    /usr/share/combwise/puzzles.txt /usr/share/combwise/combwise.htm /usr/share/combwise/WordNet-LICENSE.txt \
    /usr/share/applications/combwise.desktop /usr/share/icons/hicolor/scalable/apps/combwise.svg \
    /usr/share/metainfo/combwise.metainfo.xml /usr/share/man/man6/combwise.6.gz \
    /usr/share/man/man1/combwise-cli.1.gz /usr/share/bash-completion/completions/combwise-cli \
    /usr/share/doc/combwise/copyright /usr/share/doc/combwise/changelog.gz; do
    grep -qx -- "- $path" "$scratch/contents" || fail "the package holds no file $path"
done
outside=$(awk '{ print $2 }' "$scratch/contents" | grep -v -e '^/usr/' -e '^/$' -e '^/usr$' || true)
[ -z "$outside" ] || fail "files outside /usr: $outside"

depends=$(dpkg-deb -f "$deb" Depends)
for needed in libqt6widgets6 libc6 fonts-liberation2; do
    [[ $depends == *"$needed"* ]] || fail "Depends lacks $needed: $depends"
done
[ "$(dpkg-deb -f "$deb" Package)" = combwise ] || fail "the package is not named combwise"

# --- validators on the installed files ---------------------------------------
root="$scratch/root"
dpkg-deb -x "$deb" "$root"
desktop-file-validate "$root/usr/share/applications/combwise.desktop" || fail "desktop-file-validate"
appstreamcli validate --no-net "$root/usr/share/metainfo/combwise.metainfo.xml" >"$scratch/appstream.log" 2>&1 ||
    { cat "$scratch/appstream.log"; fail "appstreamcli validate"; }

# --- running the unpacked programs -------------------------------------------
# The program folder is made read-only, and the programs run as an ordinary
# user (root writes anywhere, so root runs them as nobody).
chmod -R a-w "$root/usr"
home="$scratch/home"
mkdir -p "$home"
as_user=()
if [ "$(id -u)" -eq 0 ]; then
    chown nobody "$home"
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
before=$(find "$root" -printf '%p %s %T@\n' | sort)

run() {
    (cd "$home" && env -i PATH=/usr/bin:/bin HOME="$home" XDG_CONFIG_HOME="$home/config" \
        XDG_DATA_HOME="$home/data" LANG=C.UTF-8 "$@" "${as_user[@]}" "$root/usr/bin/$program" "${args[@]}")
}

program=combwise-cli args=(create --size 7 --count 1 --seed 5 --output "$home/mine.txt")
run >"$scratch/out" 2>&1 || { cat "$scratch/out"; fail "combwise-cli create failed"; }
[ "$(wc -l <"$home/mine.txt" 2>/dev/null)" = 1 ] || fail "combwise-cli create wrote no puzzle to mine.txt"
program=combwise-cli args=(show "$home/mine.txt")
run >"$scratch/out" 2>&1 || { cat "$scratch/out"; fail "combwise-cli show failed"; }

program=combwise-cli args=(batch --count 1 --seed 5)
run >"$scratch/out" 2>&1 || { cat "$scratch/out"; fail "combwise-cli batch failed"; }
[ "$(wc -l <"$home/data/combwise/puz-18sepsize17D.txt" 2>/dev/null)" = 1 ] ||
    fail "the batch puzzle is not in the user's data folder"

program=combwise-cli args=(--version)
cli_version=$(run 2>&1) || fail "combwise-cli --version failed"
program=combwise args=(--version)
game_version=$(run 2>&1) || fail "combwise --version failed without a display"
[ "$cli_version" = "combwise-cli $version" ] || fail "combwise-cli --version says '$cli_version'"
[ "$game_version" = "combwise $version" ] || fail "combwise --version says '$game_version'"
program=combwise args=(--help)
run >"$scratch/out" 2>&1 && grep -q -- --screenshot "$scratch/out" || { cat "$scratch/out"; fail "combwise --help without a display"; }
program=combwise args=(--no-such-option)
run >"$scratch/out" 2>&1
status=$?
[ $status -eq 2 ] && grep -q "no-such-option" "$scratch/out" || fail "an unknown option gave status $status: $(cat "$scratch/out")"

# The game starts on the readymade puzzles, then saves its settings as Save
# Options (and Exit) do: they must land in the user's configuration folder.
program=combwise args=(--screenshot "$home/shot.png" --save-options)
run QT_QPA_PLATFORM=offscreen >"$scratch/out" 2>&1 || { cat "$scratch/out"; fail "combwise --screenshot failed"; }
[ "$(head -c 4 "$home/shot.png" 2>/dev/null | tail -c 3)" = PNG ] || fail "combwise --screenshot wrote no picture"
settings="$home/config/combwise/combwise.cfg"
if [ -f "$settings" ]; then
    [ "$(sed -n 2p "$settings" | tr -d '\r')" = "$root/usr/share/combwise/puzzles.txt" ] ||
        fail "the saved settings do not name the readymade puzzles: $(sed -n 2p "$settings")"
    [ "$(sed -n 3p "$settings" | tr -d '\r')" = "$root/usr/share/combwise/english3.txt" ] ||
        fail "the saved settings do not name the installed dictionary: $(sed -n 3p "$settings")"
else
    fail "combwise saved no settings in the user's folder ($(cat "$scratch/out"))"
fi

after=$(find "$root" -printf '%p %s %T@\n' | sort)
[ "$before" = "$after" ] || fail "something was written under the unpacked root: $(diff <(echo "$before") <(echo "$after"))"

if [ $failures -gt 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "the package holds its files where they belong; the unpacked programs run and write only to the user's folders"
