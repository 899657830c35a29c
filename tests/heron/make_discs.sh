#!/usr/bin/env bash
# make_discs.sh FOLDER: authors the small discs that the tests of the disc tools read, unless they are there already.
# Needs: ffmpeg dvdauthor genisoimage fonts-liberation python3.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1"
cd "$1"
if [ -e complete ] && [ complete -nt "$0" ] && [ complete -nt "$here/change_disc.py" ] && [ complete -nt "$here/pull_down.py" ]; then exit 0; fi
rm -rf -- *

clip() { # clip NAME SECONDS TARGET SIZE RATE [SOUND…]: the picture counts frames; two tones unless other sound is asked for
    local name=$1 seconds=$2 target=$3 size=$4 rate=$5
    shift 5
    [ $# -gt 0 ] || set -- -map 1 -map 2 -c:a ac3
    ffmpeg -nostdin -v error -y -f lavfi -i "testsrc2=s=$size:r=$rate:d=$seconds" -f lavfi -i "sine=f=440:d=$seconds" \
        -f lavfi -i "sine=f=880:d=$seconds" -map 0 -target "$target-dvd" -b:v 1500k "$@" "$name"
}
author() { # author NAME VOLUME: of NAME.xml, into a folder and an image
    dvdauthor -x "$1.xml" >>author.log 2>&1
    genisoimage -quiet -dvd-video -V "$2" -o "$1.iso" "$1"
}

# PAL: two titles, the second longer, with subtitles and chapters
export VIDEO_FORMAT=PAL
clip one.mpg 6 pal 720x576 25
clip two.mpg 12 pal 720x576 25
printf '1\n00:00:02,000 --> 00:00:04,000\nBonjour le monde\n\n2\n00:00:08,000 --> 00:00:10,000\nDeuxieme ligne\n' >lines.srt
cat >lines.xml <<'X'
<subpictures><stream><textsub filename="lines.srt" characterset="UTF-8" fontsize="28.0" fill-color="rgba(255,255,0,255)"
font="/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf" horizontal-alignment="center" vertical-alignment="bottom"
movie-fps="25" movie-width="720" movie-height="574"/></stream></subpictures>
X
spumux -s0 lines.xml <two.mpg >two-lines.mpg 2>spumux.log
cat >plain.xml <<'X'
<dvdauthor dest="plain"><vmgm/><titleset><titles><video format="pal" aspect="4:3"/><audio lang="en"/>
<audio lang="de" content="comments1"/><subpicture lang="fr"/><pgc><vob file="one.mpg" chapters="0,3"/></pgc>
<pgc><vob file="two-lines.mpg" chapters="0,3,6,9"/></pgc></titles></titleset></dvdauthor>
X
author plain HOLIDAY_2026

# Each language of subtitles has a stream for wide screens and one for others; the sound is in other streams than its place tells
cp two.mpg wide.mpg
for stream in 0 1 2 3; do
    spumux -s$stream lines.xml <wide.mpg >next.mpg 2>>spumux.log
    mv next.mpg wide.mpg
done
cat >wide.xml <<'X'
<dvdauthor dest="wide"><vmgm/><titleset><titles><video format="pal" aspect="16:9" widescreen="nopanscan"/><audio lang="en"/><audio lang="de"/>
<subpicture lang="fr"><stream id="0" mode="widescreen"/><stream id="1" mode="letterbox"/></subpicture>
<subpicture lang="en"><stream id="2" mode="widescreen"/><stream id="3" mode="letterbox"/></subpicture>
<pgc><vob file="wide.mpg"><cell start="0" end="6" chapter="1" pause="5"/><cell start="6" chapter="1"/></vob></pgc></titles></titleset></dvdauthor>
X
dvdauthor -x wide.xml >>author.log 2>&1
mkdir -p lower/video_ts
for file in plain/VIDEO_TS/*; do cp "$file" "lower/video_ts/$(basename "$file" | tr A-Z a-z)"; done
head -c $(($(stat -c %s plain.iso) / 2 / 2048 * 2048)) plain.iso >truncated.iso

# Sound of six channels, and uncompressed in 16 and 24 bits
clip sound.mpg 4 pal 720x576 25 -filter_complex '[1][1][1][1][1][1]join=inputs=6:channel_layout=5.1[six];[2]volume=0.7[quiet]' \
    -map '[six]' -map 2 -map '[quiet]' -c:a:0 ac3 -b:a:0 448k -c:a:1 pcm_dvd -c:a:2 pcm_dvd -sample_fmt:a:2 s32 -ar 48000 -ac:a:1 2 -ac:a:2 2
cat >sound.xml <<'X'
<dvdauthor dest="sound"><vmgm/><titleset><titles><video format="pal" aspect="16:9"/><audio lang="en"/><audio lang="it"/>
<audio lang="es"/><pgc><vob file="sound.mpg"/></pgc></titles></titleset></dvdauthor>
X
author sound SOUND

# Thirty titles
clip short.mpg 1 pal 720x576 25
{
    echo '<dvdauthor dest="many"><vmgm/>'
    for set in 1 2 3; do
        echo '<titleset><titles><video format="pal" aspect="4:3"/><audio lang="en"/><audio lang="fr"/>'
        for title in $(seq 10); do echo '<pgc><vob file="short.mpg"/></pgc>'; done
        echo '</titles></titleset>'
    done
    echo '</dvdauthor>'
} >many.xml
author many MANY

# Cells that become angles below
cat >angles.xml <<'X'
<dvdauthor dest="angles"><vmgm/><titleset><titles><video format="pal" aspect="4:3"/><audio lang="en"/><audio lang="de"/>
<pgc><vob file="two.mpg"><cell start="0" end="3" chapter="1"/><cell start="3" end="6"/><cell start="6" end="9"/>
<cell start="9" end="12" chapter="1"/></vob></pgc></titles></titleset></dvdauthor>
X
dvdauthor -x angles.xml >>author.log 2>&1

# NTSC: one title of two pieces whose clocks both begin at 0
export VIDEO_FORMAT=NTSC
clip first.mpg 5 ntsc 720x480 30000/1001
clip second.mpg 7 ntsc 720x480 30000/1001
cat >steps.xml <<'X'
<dvdauthor dest="steps"><vmgm/><titleset><titles><video format="ntsc" aspect="16:9" widescreen="nopanscan"/><audio lang="en"/>
<audio lang="fr"/><pgc><vob file="first.mpg" chapters="0,2"/><vob file="second.mpg" chapters="0,4"/></pgc></titles></titleset>
</dvdauthor>
X
author steps STEPS

# Film of 24 pictures a second that is shown as 30
ffmpeg -nostdin -v error -y -f lavfi -i "testsrc2=s=720x480:r=24000/1001:d=6" -aspect 16:9 -c:v mpeg2video -bf 0 -g 12 -b:v 1500k \
    -f mpeg2video film.m2v
python3 "$here/pull_down.py" film.m2v
ffmpeg -nostdin -v error -y -fflags +genpts -f mpegvideo -framerate 30000/1001 -i film.m2v -f lavfi -i "sine=f=440:d=6" -map 0 -map 1 \
    -c:v copy -c:a ac3 -ar 48000 -ac 2 -f dvd -muxrate 10080000 -packetsize 2048 film.mpg
cat >film.xml <<'X'
<dvdauthor dest="film"><vmgm/><titleset><titles><video format="ntsc" aspect="16:9" widescreen="nopanscan"/><audio lang="en"/>
<pgc><vob file="film.mpg" chapters="0,3"/></pgc></titles></titleset></dvdauthor>
X
author film FILM

# What the author program cannot make is made by changing what it made
python3 "$here/change_disc.py" .
touch complete
