# What each need is made of, as Debian and Ubuntu call it, and how it gets here. Where two names
# stand with a bar between them, releases differ and any one will do.

packagesToBuild=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev' libfontconfig-dev librtmidi-dev libasound2-dev
  libjack-jackd2-dev)
packagesToRun=(fonts-dejavu-core)
packagesToTest=(libgtest-dev libgmock-dev libxcb1-dev jackd2 xvfb xdotool openbox
  xclip x11-xkb-utils dbus at-spi2-core ibus ibus-hangul python3)
packagesToBench=(libbenchmark-dev jackd2 xvfb)
# llvm says where in the source a report of a sanitizer points to.
packagesToSanitize=(clang libclang-rt-dev llvm)
packagesToCover=(clang libclang-rt-dev llvm)
packagesToFormat=(clang-format)
packagesToTidy=(clang-tidy)
packagesToFuzz=(clang libclang-rt-dev)
packagesToTestAlsa=(qemu-system-x86 busybox-static cpio kmod)
packagesToPackage=(dpkg-dev file gzip desktop-file-utils appstream lintian man-db)
packagesToTestPackage=(debootstrap util-linux xvfb xdotool python3-xlib)

installedOf() {
  dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^ii *//p'
}

# Installs those of the packages that are missing.
needPackages() {
  if ! command -v dpkg-query >/dev/null; then
    [ -n "${packagesToldOf:-}" ] ||
      echo "This is neither Debian nor Ubuntu, so nothing is installed for you. Needed: $*"
    packagesToldOf=yes
    return
  fi
  local names present missing=() choice name found
  IFS='|' read -r -a names <<<"$(IFS='|'; echo "$*")"
  present=$(installedOf "${names[@]}") || true
  for choice in "$@"; do
    found=
    for name in ${choice//|/ }; do
      grep -qxF -- "$name" <<<"$present" && found=yes
    done
    [ -n "$found" ] || missing+=("$choice")
  done
  [ ${#missing[@]} -eq 0 ] || installPackages "${missing[@]}"
}

installPackages() {
  local asRoot=() choice chosen=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing and must be installed by root: $*" >&2
      exit 1
    fi
    asRoot=(sudo)
  fi
  "${asRoot[@]}" apt-get update -qq </dev/null || echo 'The package lists could not be renewed.' >&2
  for choice in "$@"; do
    chosen+=("$(firstAvailable "${choice//|/ }")")
  done
  echo "Installing ${chosen[*]}; this takes a moment."
  case " ${chosen[*]} " in
    # The one package of ours that asks a question.
    *' jackd2 '*)
      echo 'jackd2 jackd/tweak_rt_limits boolean false' | "${asRoot[@]}" debconf-set-selections
      ;;
  esac
  "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends -o Dpkg::Use-Pty=0 "${chosen[@]}" \
    </dev/null >/dev/null
}

# Of names that stand for the same thing, the first that this release has.
firstAvailable() {
  local name
  for name in $1; do
    if apt-cache show "$name" >/dev/null 2>&1; then
      echo "$name"
      return
    fi
  done
  echo "${1%% *}"
}
