#!/bin/sh
# PackIcns.sh OUTPUT TYPE=PNG…: an icns file with these pages ("ic08=kestrel_256.png"). The usual packers code the large pages
# as JPEG 2000, which Qt does not read; here each page is the PNG as it is.
set -eu

big_endian() {
    printf "$(printf '\\%03o\\%03o\\%03o\\%03o' $(($1 >> 24 & 255)) $(($1 >> 16 & 255)) $(($1 >> 8 & 255)) $(($1 & 255)))"
}

output=$1
shift
total=8
for page; do
    total=$((total + 8 + $(wc -c <"${page#*=}")))
done
{
    printf icns
    big_endian $total
    for page; do
        printf %s "${page%%=*}"
        big_endian $((8 + $(wc -c <"${page#*=}")))
        cat "${page#*=}"
    done
} >"$output"
