# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared with the tests
# What the tests of the tour share.

tourDir=$root/build/tour

# tour OPTION...: the paths found, sorted, without a trailing line end.
tour() {
    bash "$root/run" "$@" >"$scratch/rows" 2>"$scratch/said" </dev/null || {
        cat "$scratch/said"
        exit 1
    }
    cut -f 1 "$scratch/rows" | LC_ALL=C sort
}

lines() {
    printf '%s\n' "$@"
}

# from_page PATH: what stands there in the page, which is read as XML.
from_page() {
    xmllint --xpath "$1" "$tourDir/index.html"
}

steps=(start name-page calendar date-page etc-page type-list finding results file-menu view-menu option-menu)
rowSteps=(delete-question properties)
lastSteps=(browser about rename error shortcut replace-question)

# expect_apart STEP STEP: the two pictures differ over more than a button that the pointer lights up.
expect_apart() {
    local width height
    read -r width height < <(convert "$tourDir"/*-"$1".png "$tourDir"/*-"$2".png \
        -compose difference -composite -trim -format '%w %h' info:)
    expect_that "$1 differs from $2: over $width x $height pixels" test "$((width >= 50 && height >= 40))" = 1
}

# expect_page SCREEN STEP...: the page shows exactly these pictures, each with a line of its own, of the screen's size,
# with something in it and unlike every other.
expect_page() {
    local screen=$1 number=0 step file texts
    shift
    expect_equal 'what is wrong with the page as XML' '' "$(xmllint --noout "$tourDir/index.html" 2>&1)"
    expect_equal 'what is wrong with the page as HTML' '' "$(xmllint --html --noout "$tourDir/index.html" 2>&1)"
    expect_equal 'pictures of the page' $# "$(from_page 'count(//*[local-name()="img"])')"
    for step; do
        number=$((number + 1))
        file=$(printf '%02d-%s.png' "$number" "$step")
        expect_equal "picture $number" "$file" "$(from_page "string((//*[local-name()='img'])[$number]/@src)")"
        expect_match "line $number" "$number. [A-Z]*." "$(from_page "string((//*[local-name()='div'])[$number]/*[local-name()='p'])")"
        expect_equal "size of $file" "$screen" "$(identify -format '%wx%h' "$tourDir/$file")"
        expect_that "$file has more than one colour" test "$(identify -format '%k' "$tourDir/$file")" -gt 4
    done
    expect_equal 'files' "$(printf '%s\n' "$tourDir"/*.png | wc -l)" $#
    expect_equal 'pictures that are there twice' '' "$(identify -format '%#\n' "$tourDir"/*.png | sort | uniq -d)"
    expect_apart calendar date-page
    expect_apart type-list etc-page
    for step in finding file-menu view-menu option-menu browser about; do
        expect_apart "$step" results
    done
    expect_apart error rename
    texts=$(from_page '//*[local-name()="img"]/@alt' | sort)
    expect_equal 'lines that are there twice' '' "$(uniq -d <<<"$texts")"
}

# what_a_browser_shows: each picture of the page with the size that a browser finds in it.
what_a_browser_shows() {
    local browser=$1 script
    script='onload = function () {
        var texts = [];
        for (var i = 0; i < document.images.length; ++i)
            texts.push(document.images[i].getAttribute("src") + " " + document.images[i].naturalWidth + "x" +
                document.images[i].naturalHeight);
        document.title = texts.join(";");
    }'
    mkdir -p "$scratch/browser"
    cp "$tourDir"/*.png "$scratch/browser/"
    awk -v script="<script>$script</script>" '/<\/body>/ { print script } { print }' "$tourDir/index.html" \
        >"$scratch/browser/page.html"
    HOME=$scratch/browser timeout 120 "$browser" --headless --no-sandbox --disable-gpu --virtual-time-budget=20000 \
        --user-data-dir="$scratch/browser/profile" --dump-dom "file://$scratch/browser/page.html" 2>/dev/null |
        sed -n 's|.*<title>\(.*\)</title>.*|\1|p' | tr ';' '\n'
}

# expect_browser_shows SCREEN: where there is a browser that can be asked, it finds every picture.
expect_browser_shows() {
    local browser
    browser=$(command -v chromium || command -v google-chrome) || return 0
    expect_equal 'pictures in a browser' "$(cd "$tourDir" && printf "%s $1\n" *.png)" "$(what_a_browser_shows "$browser")"
}
