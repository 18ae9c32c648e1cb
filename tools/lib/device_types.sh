# shellcheck shell=bash disable=SC2154 # variables are shared between these files

# The kinds of documents that the device knows, each with what opens it. Wine brings a few that no handheld has and
# leaves out the commonest ones.

# One kind a line: key, extensions, English and Japanese name, program. A shortcut is opened by the shell itself.
deviceTypes='
txtfile  | .txt       | Text Document    | ﾃｷｽﾄ文書       | C:\windows\system32\notepad.exe
logfile  | .log       | Log              | 記録           | C:\windows\system32\notepad.exe
csvfile  | .csv       | CSV Table        | CSV形式の表    | C:\windows\system32\notepad.exe
htmlfile | .htm .html | HTML Document    | HTML文書       | C:\windows\system32\notepad.exe
inifile  | .ini       | Settings         | 設定           | C:\windows\system32\notepad.exe
rtffile  | .rtf       | Rich Text        | ﾘｯﾁﾃｷｽﾄ文書    | C:\Program Files\Windows NT\Accessories\wordpad.exe
wmffile  | .wmf       | Picture          | 図             | C:\windows\system32\view.exe
lnkfile  | .lnk       | Shortcut         | ｼｮｰﾄｶｯﾄ        |
'

unknownExtensions='.chm .cpl .hlp .inf .its .js .msi .msp .pdf .url .vbs .wri'

# registry_key PATH VALUE: the key with its own value. Both are escaped as such a file wants it.
registry_key() {
    local value=${2//\\/\\\\}
    printf '[HKEY_LOCAL_MACHINE\\Software\\Classes\\%s]\r\n@="%s"\r\n\r\n' "$1" "${value//\"/\\\"}"
}

print_device_type() {
    local key=$1 extensions=$2 name=$3 program=$4 extension
    for extension in $extensions; do
        registry_key "$extension" "$key"
    done
    registry_key "$key" "$name"
    [[ -n $program ]] || return 0
    registry_key "$key\\DefaultIcon" "$program,0"
    registry_key "$key\\shell\\open\\command" "\"$program\" \"%1\""
}

# print_device_types LANGUAGE: what has to be imported into a system of that language, in UTF-8.
print_device_types() {
    local key extensions extension english japanese program name
    printf 'Windows Registry Editor Version 5.00\r\n\r\n'
    for extension in $unknownExtensions; do
        printf '[-HKEY_LOCAL_MACHINE\\Software\\Classes\\%s]\r\n\r\n' "$extension"
    done
    while IFS='|' read -r key extensions english japanese program; do
        [[ -n $key ]] || continue
        name=$english
        [[ $1 == en ]] || name=$japanese
        # Reading a text once more takes off the blanks that keep the table in columns. Backslashes stay.
        read -r key <<<"$key"
        read -r name <<<"$name"
        read -r program <<<"$program"
        print_device_type "$key" "$extensions" "$name" "$program"
    done <<<"$deviceTypes"
}

# write_device_types LANGUAGE FILE: the same as the file that regedit reads.
write_device_types() {
    { printf '\xff\xfe' && print_device_types "$1" | iconv -f UTF-8 -t UTF-16LE; } >"$2"
}
