# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The package for users: made anew in a folder of its own, then packed in the order of the names, with one time and
# one set of rights for all, so that neither the machine nor the user nor the hour is in it.

# The version stands in project() of CMakeLists.txt.
package_version() {
    sed -n 's/^project(QuorinSearch VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt"
}

# In seconds since 1970.
package_time() {
    if [[ -n ${SOURCE_DATE_EPOCH:-} ]]; then
        echo "$SOURCE_DATE_EPOCH"
    else
        git -C "$root" log -1 --format=%ct 2>/dev/null ||
            fail "this is no clone of the repository, so the package has no time; set SOURCE_DATE_EPOCH"
    fi
}

# for_notepad: lines end in CR LF, and a mark tells that it is UTF-8: what every Notepad can read.
for_notepad() {
    printf '\357\273\277'
    sed 's/$/\r/'
}

# html_page LANGUAGE: a page of the Markdown on standard input, with the style that makes it readable. Its first line
# is the title; what it says of other Markdown pages is true of the pages made from them. A line that ends in Japanese
# has no blank behind it.
html_page() {
    local first
    IFS= read -r first
    cat <<TEXT
<!DOCTYPE html>
<html lang="$1">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>${first#\# }</title>
<style>
body { max-width: 46em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; color: #111; background: #fff; }
h1, h2, h3 { line-height: 1.2; color: #000080; }
table { border-collapse: collapse; }
th, td { border: 1px solid #c0c0c0; padding: 0.25em 0.6em; text-align: left; vertical-align: top; }
code { font-family: monospace; background: #f0f0f0; padding: 0 0.2em; }
img { max-width: 100%; border: 1px solid #808080; }
</style>
</head>
<body>
TEXT
    { printf '%s\n' "$first" && cat; } | cmark-gfm --extension table --to html |
        LC_ALL=C.UTF-8 sed -z 's/\(<a href="[A-Za-z.]*\)\.md"/\1.html"/g; s/\([。、]\)\n/\1/g'
    printf '</body>\n</html>\n'
}

# linked_pictures: the files that the page on standard input shows, one a line.
linked_pictures() {
    sed -n 's/.*<img src="\([^"]*\)".*/\1/p' | sort -u
}

# put_pages FOLDER: the page for users in both languages, with the pictures.
put_pages() {
    local picture
    mkdir -p "$1/docs"
    html_page en <"$root/docs/using.md" >"$1/docs/using.html"
    html_page ja <"$root/docs/using.ja.md" >"$1/docs/using.ja.html"
    while read -r picture; do
        mkdir -p "$1/docs/${picture%/*}"
        cp "$root/docs/$picture" "$1/docs/$picture"
    done < <(cat "$1"/docs/*.html | linked_pictures)
}

# put_contents FOLDER VERSION
put_contents() {
    mkdir -p "$1"
    cp "$buildDir/release/quorinsearch.exe" "$buildDir/release/TKCONV.DLL" "$1"
    for_notepad <"$root/LICENSE" >"$1/LICENSE.txt"
    sed "s/@VERSION@/$2/g" "$root/docs/package_readme.txt" | for_notepad >"$1/README.txt"
    put_pages "$1"
}

# even_out FOLDER SECONDS: rights and times are no longer those of this hour and user.
even_out() {
    find "$1" -type d -exec chmod 755 {} + -o -type f -exec chmod 644 {} +
    find "$1" -exec touch -d "@$2" {} +
}

# pack FOLDER FILE: the folder itself is the first part of each name. A zip's times are those of a zone.
pack() (
    cd "${1%/*}" || exit
    find "${1##*/}" -type f | LC_ALL=C sort | TZ=UTC zip -q -9 -X -D "$2" -@
)

make_package() {
    local version name stage seconds
    version=$(package_version)
    name=quorinsearch-$version
    seconds=$(package_time)
    stage=$(mktemp -d "$buildDir/package.XXXXXX")
    at_exit rm -rf "$stage"
    put_contents "$stage/$name" "$version"
    even_out "$stage/$name" "$seconds"
    pack "$stage/$name" "$stage/$name.zip"
    (cd "$stage" && sha256sum "$name.zip" >"$name.zip.sha256")
    mv -f "$stage/$name.zip" "$stage/$name.zip.sha256" "$buildDir"
    say "the package is $buildDir/$name.zip, $(stat -c %s "$buildDir/$name.zip") bytes"
}
