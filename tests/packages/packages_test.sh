#!/usr/bin/env bash
# What is installed and packaged, tried in scratch folders: packages_test.sh PART BUILD_FOLDER LIBRARY_FOLDER
set -euo pipefail
export LC_ALL=C.UTF-8
readonly part=$1 build=$2 library_folder=$3
source=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
cd "$source"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
readonly prefix=$scratch/prefix
readonly examples=$prefix/share/doc/vignel-orrelix-dev/examples/hosts
export PKG_CONFIG_PATH=$prefix/${library_folder%/*}/pkgconfig

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Whether what is read has a line like that. It reads to the end, so that nobody writes to a closed pipe.
holds() { grep "$@" >/dev/null; }

# Ends the test as left out, unless all of the commands are there.
need() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || { echo "left out: $tool is missing, './dev test' installs it"; exit 77; }
    done
}

# What is read has to be tests/packages/NAME.txt; what it is instead is left beside that.
expect() {
    local file=tests/packages/$1.txt
    cat >"$scratch/got"
    if ! diff -u "$file" "$scratch/got"; then
        cp "$scratch/got" "$file.new"
        fail "$file is expected"
    fi
}

install_all() {
    (cd "$scratch" && cmake --install "$build" --prefix prefix) >"$scratch/log" || fail "$(cat "$scratch/log")"
}

# A user who has registered nothing, with the installed component in the system's registry.
as_host() { env XDG_CONFIG_HOME="$scratch/home" XDG_CONFIG_DIRS="$prefix/etc/xdg" "$@"; }

# A host says of an example what every other one says, and writes the same file.
try_host() {
    mkdir -p "$scratch/written"
    as_host "$@" examples/tool_tip_rich.cfg "$scratch/written/tip.cfg" | expect hosts
    [ -f "$scratch/first.cfg" ] || cp "$scratch/written/tip.cfg" "$scratch/first.cfg"
    cmp "$scratch/first.cfg" "$scratch/written/tip.cfg"
    rm -r "$scratch/written"
}

build_outside() {
    cmake -S tests/packages/outside -B "$scratch/outside" -DHOSTS="$1" "${@:2}" >"$scratch/log" &&
        cmake --build "$scratch/outside" -j 2 >>"$scratch/log" 2>&1 || fail "$(cat "$scratch/log")"
}

# A host for each language, built as somebody else builds it against what is installed.
hosts() {
    need python3 pkg-config
    install_all
    build_outside "$examples" -DCMAKE_PREFIX_PATH="$prefix"
    try_host "$scratch/outside/host_c"
    try_host "$scratch/outside/host_cpp"
    try_host python3 "$examples/host.py"
    as_host "$prefix/bin/orrelix" show examples/tool_tip_rich.cfg >/dev/null
    "$scratch/outside/linked"

    g++ -std=c++17 "$examples/host.cpp" -o "$scratch/by_hand" $(pkg-config --cflags VignelOrrelix)
    try_host "$scratch/by_hand"
    g++ -x c tests/packages/outside/linked.c -o "$scratch/linked" $(pkg-config --cflags --libs VignelOrrelix)
    "$scratch/linked"
    readelf -d "$scratch/linked" | holds 'NEEDED.*\[libVignelOrrelix\.so\.1\]' || fail "linked without a version"
}

# The component as a part of another project: it brings no program, windows or tests, and its scripts with it.
subproject() {
    build_outside "$source/examples/hosts" -DORRELIX_SOURCE="$source"
    "$scratch/outside/linked"
    [ -f "$scratch/outside/orrelix/lib/select.js" ] || fail "no scripts beside the library"
    [ ! -e "$scratch/outside/orrelix/bin" ] || fail "built more than the component"
}

# The library is found where it is installed, and under the keys that it enters itself into a user's registry with.
registration() {
    need python3
    install_all
    local library
    library=$(sed -n 's/^@=\(.*\.so.*\)$/\1/p' "$prefix/etc/xdg/vignel/orrelix.ini")
    as_host python3 -c "import ctypes; assert ctypes.CDLL('$library').DllRegisterServer() == 0"
    diff -u "$scratch/home/vignel/registry.ini" "$prefix/etc/xdg/vignel/orrelix.ini"
    local size
    for size in 16 32 48 64 128 256; do
        file "${library%/*}/orrelix-$size.png" | holds " $size x $size," || fail "orrelix-$size.png has another size"
    done
}

# A user who isn't root owns what is unpacked all the same, and no script of a package gets at this system's libraries.
dpkg_there() {
    local run=()
    [ "$(id -u)" -eq 0 ] || run=(fakeroot --)
    mkdir -p "$scratch/tools" "$scratch/root/var/lib/dpkg"
    ln -sf "$(type -P true)" "$scratch/tools/ldconfig"
    PATH=$scratch/tools:$PATH:/usr/sbin:/sbin "${run[@]}" dpkg --root="$scratch/root" --log="$scratch/log" \
        --force-not-root --force-script-chrootless --force-depends "$@" >>"$scratch/log" 2>&1 ||
        fail "$(cat "$scratch/log")"
}

files_there() { (cd "$scratch/root" && find . -path ./var/lib/dpkg -prune -o ! -type d -print | sort); }

# Without what differs between versions of Debian, kinds of builds and places of libraries.
comparable() {
    sed -E -e '/^Depends/s/[0-9]*(t64)?( \([^)]*\))?(,|$)/\3/g' -e "s|/${library_folder%/*}/|/lib/|" \
        -e 's/Config-[a-z]+\./Config-BUILD./'
}

# What the packages hold and need; and that nothing of them stays.
debian() {
    need dpkg-deb dpkg-shlibdeps file fakeroot
    # The generator is named for a build tool that needs no run of "all" before.
    cpack --config "$build/CPackConfig.cmake" -G DEB -B "$scratch/packages" -D CPACK_CMAKE_GENERATOR=Ninja \
        >"$scratch/log" 2>&1 || fail "$(cat "$scratch/log")"
    local package there_before
    for package in "$scratch"/packages/*.deb; do
        dpkg-deb -f "$package" Package Depends Recommends Suggests
        dpkg-deb --fsys-tarfile "$package" | tar t | grep -v '/$' | sort
        echo
    done | comparable | expect packages

    there_before=$(dpkg_there --list; find "$scratch/root" ! -path '*/var/lib/dpkg*')
    dpkg_there --install "$scratch"/packages/*.deb
    install_all
    diff <(cd "$prefix" && find . ! -type d | sort) <(files_there | sed 's|^\./usr/|./|' | sort)
    [ -f "$scratch/root$(sed -n 's/^@=\(.*\.so.*\)$/\1/p' "$scratch/root/etc/xdg/vignel/orrelix.ini")" ] ||
        fail "the library isn't where it is registered"
    dpkg_there --remove orrelix vignel-orrelix-qt vignel-orrelix-dev vignel-orrelix
    [ -z "$(files_there)" ] || fail "left behind: $(files_there)"
    [ "$there_before" = "$(find "$scratch/root" ! -path '*/var/lib/dpkg*')" ] || fail "left folders behind"
}

# Every shell offers what the program's help names.
completions() {
    local program=$build/bin/orrelix commands command options option shell
    . host/completions/orrelix.bash
    compopt() { :; }
    offered() {
        COMP_WORDS=(orrelix "$@") COMP_CWORD=$#
        _orrelix
        printf '%s\n' "${COMPREPLY[@]}"
    }
    commands=$("$program" help | sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p')
    [ -n "$commands" ] || fail "the help names no command"
    for command in "" $commands; do
        [ -z "$command" ] || offered "" | holds -x "$command" || fail "bash: no $command"
        options=$("$program" help $command | grep -oE '^ +-[^ ]*' | grep -oE -- '--[a-z-]+')
        for option in $options; do
            offered $command -- | holds -x -- "$option" || fail "bash: no $option for $command"
            grep -qE -- "${option}[[}]" host/completions/_orrelix || fail "zsh: no $option"
            grep -qE -- "-l ${option#--} " host/completions/orrelix.fish || fail "fish: no $option"
        done
        for shell in _orrelix orrelix.fish; do
            grep -qw "${command:-new}" host/completions/$shell || fail "$shell: no $command"
        done
    done
}

# Waits for a window of a process by its title, lets the keys go there and says its number.
take_window() {
    local window
    window=$(timeout 30 xdotool search --sync --all --onlyvisible --pid "$1" --name "$2" | tail -1)
    [ -n "$window" ] || fail "no window \"$2\""
    xdotool windowfocus "$window"
    echo "$window"
}

# A person makes an effect in a host with windows; the dialogs stand on top of the host's.
work_host() {
    local process window dialog title tries
    "$1" >"$scratch/log" 2>&1 &
    process=$!
    window=$(take_window $process "^A host in ")
    xdotool key space
    for title in "Select a DHTML Scripts" "Slide Text"; do
        dialog=$(take_window $process "^$title$")
        xprop -id "$dialog" WM_TRANSIENT_FOR | holds -i "# $(printf '0x%x' "$window")$" ||
            fail "$title isn't on the host's window"
        xdotool key Down Down Return
    done
    for ((tries = 0; tries < 100; ++tries)); do
        xdotool search --all --onlyvisible --pid $process --name "^Slide Text$" >/dev/null || break
        sleep 0.1
    done
    [ $tries -lt 100 ] || fail "the dialog stays"
    xdotool getwindowname "$window" >/dev/null || fail "the host is gone"
    kill $process
    wait $process 2>/dev/null || true
}

windows() {
    need Xvfb xdotool xprop pkg-config
    install_all
    Xvfb -displayfd 3 3>"$scratch/display" 2>/dev/null &
    trap 'kill $(jobs -p); wait; rm -rf "$scratch"' EXIT
    timeout 30 sh -c "until [ -s '$scratch/display' ]; do sleep 0.1; done"
    export DISPLAY=:$(cat "$scratch/display")
    export XDG_CONFIG_HOME=$scratch/home XDG_CONFIG_DIRS=$prefix/etc/xdg
    unset QT_QPA_PLATFORM WAYLAND_DISPLAY
    g++ -std=c++17 -fPIC "$examples/host_qt.cpp" -o "$scratch/host_qt" \
        $(pkg-config --cflags --libs VignelOrrelix Qt6Widgets)
    work_host "$scratch/host_qt"
    pkg-config --exists gtk+-3.0 || { echo "left out: a host in GTK, libgtk-3-dev is missing"; exit 77; }
    gcc -std=gnu11 "$examples/host_gtk.c" -o "$scratch/host_gtk" \
        $(pkg-config --cflags --libs VignelOrrelix gtk+-3.0)
    work_host "$scratch/host_gtk"
}

"$part"
