# The claims of the package's test, and how they are counted. It stands in $tree and writes into $work.

passed=0
failed=0

# Runs a command and says whether it did what the title claims.
claim() {
  local title=$1
  shift
  if "$@" >"$work/output" 2>&1; then
    passed=$((passed + 1))
    echo "good: $title"
  else
    failed=$((failed + 1))
    echo "BAD:  $title"
    sed 's/^/      /' "$work/output"
  fi
}

closeClaims() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}

waitUntil() {
  local tries=0
  until "$@"; do
    [ $((tries += 1)) -lt 300 ] || { echo "in vain waited until $*"; return 1; }
    sleep 0.1
  done
}

versionLine() { echo "Tessoro $(dpkg-deb -f "$1" Version | sed 's/-.*//')"; }

# The version that is installed has this form.
hasVersion() {
  # shellcheck disable=SC2053 # a form, not a text
  [[ $(inTree dpkg-query -W -f='${Version}' tessoro) == $1 ]]
}

isEmpty() {
  cat "$1"
  test ! -s "$1"
}

endsClosed() { "$@" | tee /dev/stderr | tail -n 1 | grep -qx 'end closed'; }

hasIcons() {
  local side theme=$tree/usr/share/icons/hicolor
  for side in 16 22 24 32 48 64 128 256; do
    file "$theme/${side}x$side/apps/org.tessoro.Tessoro.png" \
      "$theme/${side}x$side/mimetypes/application-x-tessoro-sound.png" |
      grep -c "PNG image data, $side x $side," | grep -qx 2 || return 1
  done
  test -f "$theme/scalable/apps/org.tessoro.Tessoro.svg"
}

# Whoever hands out packages knows where the pictures are. Each one named must be among them.
showsScreenshots() {
  local metainfo=$work/published/packaging/org.tessoro.Tessoro.metainfo.xml pictures picture
  local address=https://www.example.org/pictures
  cmake -S . -B "$work/published" -D TESSORO_TESTS=OFF -D TESSORO_PICTURES_URL=$address \
    -D TESSORO_HOMEPAGE=https://www.example.org || return 1
  appstreamcli validate --no-net "$metainfo" || return 1
  pictures=$(sed -nE "s|.*<image>$address/(.*)</image>|\1|p" "$metainfo")
  [ "$(wc -l <<<"$pictures")" -eq 3 ] || return 1
  while read -r picture; do
    test -f "docs/pictures/$picture" || return 1
  done <<<"$pictures"
}

hasManPages() {
  local program
  for program in tessoro tessoro-headless tessoro-monitor; do
    test -f "$tree/usr/share/man/man1/$program.1.gz" || return 1
  done
}

# The folder of sounds may have become known meanwhile.
settingsAreKept() { diff <(sed 2d "$work/settings") <(sed 2d "$settings"); }

leavesOnlyHome() {
  diff "$work/before" "$work/after" | grep '^[<>]' | grep -v '^> ./home/player' && return 1
  return 0
}
