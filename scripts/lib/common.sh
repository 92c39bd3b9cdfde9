# Shared by the scripts beside this folder: messages, packages, building. To be sourced by bash from the project's root.

if [ -t 1 ]; then
  bold=$'\e[1m' red=$'\e[31m' green=$'\e[32m' plain=$'\e[0m'
else
  bold='' red='' green='' plain=''
fi

started=$SECONDS
# The name of what runs side by side with others, empty when nothing does, and how many cores it may keep busy.
lane=
jobs=$(nproc)

# A heading, with the time since the start.
step() { printf '\n%s[%3d s] %s%s\n' "$bold" "$((SECONDS - started))" "$*" "$plain"; }
say() { printf '%s\n' "$*"; }
fail() {
  printf '%s%s%s\n' "$red" "$*" "$plain" >&2
  exit 1
}

# What building the add-in and the headless host takes.
build_packages=(g++ cmake ninja-build nlohmann-json3-dev libcli11-dev libpng-dev libocct-data-exchange-dev
  libfontconfig-dev libtbb-dev gmsh-doc)
# What testing takes besides.
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev binutils python3 git ca-certificates)
# What building the pictures beside the module takes: icons from drawings, swatches of colours.
picture_packages=(librsvg2-bin python3-pil fonts-dejavu-core)
# What making the user guide and its pictures, and looking into it, take besides.
guide_packages=(weasyprint python3-markdown fonts-open-sans poppler-utils)
# What the checks with the second compiler take besides.
check_packages=(clang-14 libclang-rt-14-dev clang-format-14 clang-tidy-14 cppcheck)
# What building for Windows and running that takes besides.
windows_packages=(g++-mingw-w64-x86-64-posix googletest wine wine64 lld-14)

is_installed() { [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# Installs the packages that are missing, or says which to install where that is not allowed.
ensure_packages() {
  local missing=() package as_root=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  command -v apt-get >/dev/null || fail "These Debian packages are needed: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    sudo -n true 2>/dev/null || fail "These packages are missing; install them with: sudo apt-get install ${missing[*]}"
    as_root=(sudo -n)
  fi
  step "Installing ${#missing[@]} packages: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  local install=("${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}")
  if ! "${install[@]}" >"$log_folder/install.log" 2>&1; then
    "${as_root[@]}" apt-get update -q >>"$log_folder/install.log" 2>&1 || true
    "${install[@]}" >>"$log_folder/install.log" 2>&1 ||
      { tail -n 20 "$log_folder/install.log" >&2; fail "The packages could not be installed; the log is $log_folder/install.log"; }
  fi
}

# provide_assembly FILE: puts the assembly as1-tu-203.stp there, out of the package gmsh-doc. Systems that leave out
# documentation have the package without its files; then they come from the package itself.
provide_assembly() {
  local file=$1 packed=usr/share/doc/gmsh-doc/doc/gmsh/demos/api/as1-tu-203.stp.gz unpacked
  [ -s "$file" ] && return
  mkdir -p "$(dirname "$file")"
  if [ -r "/$packed" ]; then
    gunzip -c "/$packed" >"$file.new"
  else
    unpacked=$(mktemp -d)
    (cd "$unpacked" && { apt-get download -q gmsh-doc || { apt-get update -q && apt-get download -q gmsh-doc; }; } &&
      dpkg-deb -x gmsh-doc_*.deb .) >"$log_folder/assembly.log" 2>&1 ||
      { tail -n 5 "$log_folder/assembly.log" >&2; fail "The package gmsh-doc, which holds the assembly, cannot be fetched"; }
    gunzip -c "$unpacked/$packed" >"$file.new"
    rm -rf "$unpacked"
  fi
  mv "$file.new" "$file"
}

# Compiler cache, where there is one.
launcher_options() {
  if command -v ccache >/dev/null; then
    export CCACHE_NOHASHDIR=1
    printf '%s\n' -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
  fi
}

# show_progress PROCESS LOG PATTERN: while the process runs, shows how far its log says it is; on a terminal in place,
# elsewhere, and where several lanes share the terminal, a line every half minute.
show_progress() {
  local process=$1 shown=$SECONDS in_place=false last_step=(grep -soE "$3" "$2")
  [ ! -t 1 ] || [ -n "$lane" ] || in_place=true
  while kill -0 "$process" 2>/dev/null; do
    if $in_place; then
      printf '\r  %s ' "$("${last_step[@]}" | tail -n 1)"
    elif [ $((SECONDS - shown)) -ge 30 ]; then
      printf '  [%3d s] %s%s\n' "$((SECONDS - started))" "${lane:+$lane: }" "$("${last_step[@]}" | tail -n 1)"
      shown=$SECONDS
    fi
    sleep 0.5
  done
  ! $in_place || printf '\r%40s\r' ''
}

# in_lanes FUNCTIONS...: runs them side by side, each in a shell of its own in which `lane` is its name, with its part of
# the cores. The first one that fails takes the others with it.
in_lanes() {
  local name
  # Each lane is a group of processes, so that it can be stopped with all that it started.
  set -m
  for name in "$@"; do
    { lane=$name jobs=$(((jobs + $# - 1) / $#)); set -e; "$name"; } &
  done
  trap 'for group in $(jobs -p); do kill -- "-$group" 2>/dev/null || true; done' EXIT
  for name in "$@"; do
    wait -n || exit 1
  done
  trap - EXIT
  set +m
}

# configure_tree FOLDER CMAKE_OPTIONS...
configure_tree() {
  local log="$log_folder/configure-${1##*/}.log"
  cmake -G Ninja -S . -B "$1" $(launcher_options) "${@:2}" >"$log" 2>&1 || { cat "$log" >&2; fail "Configuring $1 failed"; }
}

# build_tree FOLDER TARGETS... -- CMAKE_OPTIONS...
# Configures and builds; shows the progress, and the whole log of what failed.
build_tree() {
  local folder=$1 log="$log_folder/build-${1##*/}.log" targets=() begun=$SECONDS
  shift
  while [ "$1" != -- ]; do
    targets+=("$1")
    shift
  done
  shift
  configure_tree "$folder" "$@"
  NINJA_STATUS='  [%f/%t] ' ninja -C "$folder" -j "$jobs" "${targets[@]}" >"$log" 2>&1 &
  local builder=$!
  show_progress $builder "$log" '\[[0-9]+/[0-9]+\]'
  wait $builder || { grep -vE '^ *\[[0-9]+/[0-9]+\] (Building|Linking)' "$log" >&2; fail "Building $folder failed"; }
  say "  $folder built in $((SECONDS - begun)) s"
}

# Logs of the scripts; never committed.
log_folder=build/log
mkdir -p "$log_folder"
