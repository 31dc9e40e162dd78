#!/usr/bin/env bash
# seeds.sh FOLDER: puts the first inputs of each fuzz target there, made from the examples and the tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mkdir -p "$1"
folder=$(cd "$1" && pwd)

# seed TARGET NAME PIECE...
seed() {
    mkdir -p "$folder/$1"
    printf '%s\0' "${@:3}" >"$folder/$1/$2"
}

mkdir -p "$folder/store"
cp examples/*.cfg "$folder/store"
tail -n +12 examples/cool_link_rich.cfg >"$folder/store/no_description"

page='<!doctype html><html><head><title>t</title></head><body><!-- vignel: t --></body></html>'
charset_page=${page/<head>/<head><meta charset=gb2312>}
for type in 1 2 3 4 5 6 7 8 9; do
    seed effects "$type" "${type}4" 65001 a "b c" 1,5 d e 00ff00 12 font 3 solid "g, h" http://i/
    seed effects "${type}_gbk" "${type}2" 936 中文 '~' $'a\r\nb' '</script>' '"' "'" '\' '=' images/a.gif
done
seed page plain 65001 t '<script src="a.js"></script>' '<b>text</b>' "$page"
seed page chinese 936 t '<script>1</script>' $'\xd6\xd0' "$charset_page"
seed page again 65001 t '<script>1</script>' text \
    "${page/<\/body>/<!-- vignel cursor: t -->old<!-- \/vignel cursor: t --><\/body>}"
seed page wide 65001 t '' text
printf '\xff\xfe' >>"$folder/page/wide"
iconv -t UTF-16LE <<<"$page" >>"$folder/page/wide"
mkdir -p "$folder/shapes"
for example in examples/*.cfg; do
    sed -n '/^Segment Position = cursor/,/Segment End/{//!p}' "$example" >"$folder/shapes/$(basename "$example" .cfg)"
done
for label in utf-8 gb2312 shift_jis euc-kr big5 windows-1252 iso-2022-jp koi8-r; do
    seed encodings $label $label 932 $'text \xd6\xd0 \x83\x5c' $'\xe4\xb8\xad'
done

# calls.txt: "Title = news", "GetHTMLBody(0, 1)"
calls() {
    sed -n "/^\[$1\]/,/^\[/p" tests/faults/calls.txt | sed "s|\$EXAMPLE|$PWD/examples/cool_link_rich.cfg|" |
        awk -v at="$2" '/ = / { n = index($0, " = "); printf "p%s1%s\ns%s\ng%s0%s\n", at, substr($0, 1, n - 1), substr($0, n + 3), at, substr($0, 1, n - 1) }
            /\(.*\)$/ { n = index($0, "("); count = split(substr($0, n + 1, length($0) - n - 1), words, ", ")
                printf "m%s%d%s\n", at, count, substr($0, 1, n - 1); for (i = 1; i <= count; ++i) printf "s%s\n", words[i] }' |
        tr '\n' '\0'
}
mkdir -p "$folder/calls"
calls orrelix o >"$folder/calls/orrelix"
calls inspector i >"$folder/calls/inspector"
calls orrelix o | cat - <(calls inspector i) >"$folder/calls/both"
seed calls of_process pi1MostHTML i5 pi1CodePage i936 pi1RawTexts b-1 pi1ScriptFolder s/nowhere
for name in i h d t b e n 0 r v z; do seed calls "type_$name" mo2GetHTMLBody "${name}1" "${name}0" po1Title "${name}text"; done

# The commands of the sessions, those without pipes and the like.
config=$(cat examples/cool_link_rich.cfg)
number=0
grep -hoE '^  \$ orrelix [^|;&<>$(`]*$' tests/host/sessions/*.txt | sed 's/^  \$ orrelix //' | sort -u | while IFS= read -r command; do
    words=$(xargs -n1 printf '%s\n' <<<"$command" 2>/dev/null) || continue
    seed command_line "session$((++number))" "$words" "$config" "$page"
done
for example in examples/*.cfg; do
    name=$(basename "$example" .cfg)
    for words in $'publish\nx.cfg\n--page\nsite/page.html\n--site\nsite' $'preview\nx.cfg\n--out\nout\n--index' $'show\nx.cfg' \
        $'edit\nx.cfg\n--list-fields' $'edit\nx.cfg\n--set\nm_Width=3'; do
        title=$(sed -n 's/^Title = \(.*\)\r$/\1/p' "$example")
        seed command_line "${words%%$'\n'*}_$name" "$words" "$(cat "$example")" "${page/: t/: $title}"
    done
done
