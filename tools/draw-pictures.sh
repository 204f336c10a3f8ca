#!/usr/bin/env bash
# Draws the side-view aircraft pictures shown next to each type in the
# load planner. Every picture is 164x114, nose to the left, built from a
# handful of shared shapes so the whole set can be redrawn or restyled here.
#
# Usage: tools/draw-pictures.sh [output-folder]   (default: pictures/)
set -euo pipefail

OUT_DIR=${1:-"$(cd "$(dirname "$0")/.." && pwd)/pictures"}
WIDTH=164
HEIGHT=114
FONT=Liberation-Sans

SKY_TOP='#8fc3ec'
SKY_BOTTOM='#eaf5fd'
BODY='#f7f8f9'
OUTLINE='#46515c'
LIVERY='#1f4e8c'
METAL='#b4bcc5'
COWL='#dfe3e7'
DARK='#27313b'
GLASS='#2c415a'
TYRE='#1e1e1e'
PROP_DISC='rgba(70,70,70,0.22)'

# Draw commands collected for the picture being built.
D=()

add() { D+=(-fill "$1" -stroke "$2" -draw "$3"); }

# pct VALUE PERCENT -> integer share of VALUE
pct() { echo $(($1 * $2 / 100)); }

# ---------------------------------------------------------------- helpers

# fuselage NOSE_X TAIL_X CENTRE_Y DIAMETER NOSE_LENGTH CONE_LENGTH
# Remembers the body geometry in F_* so the other helpers can refer to it.
fuselage() {
    F_NOSE=$1 F_TAIL=$2 F_YC=$3 F_H=$4 F_NL=$5 F_CL=$6
    F_TOP=$((F_YC - F_H / 2))
    F_BOT=$((F_TOP + F_H))
    local a=$((F_NOSE + F_NL)) c=$((F_TAIL - F_CL))
    local tail_end=$((F_TOP + $(pct F_H 30)))
    add "$BODY" "$OUTLINE" "path 'M $a,$F_TOP L $c,$F_TOP L $F_TAIL,$((F_TOP + 1))
        L $F_TAIL,$tail_end
        Q $((c + $(pct F_CL 45))),$F_BOT $c,$F_BOT
        L $a,$F_BOT
        C $((F_NOSE + $(pct F_NL 35))),$F_BOT $F_NOSE,$((F_YC + $(pct F_H 30))) $F_NOSE,$((F_YC + $(pct F_H 10)))
        C $F_NOSE,$((F_YC - $(pct F_H 20))) $((F_NOSE + $(pct F_NL 40))),$F_TOP $a,$F_TOP Z'"
}

# cockpit: windscreen on the upper nose
cockpit() {
    local x=$((F_NOSE + $(pct F_NL 55))) y1=$((F_TOP + $(pct F_H 22)))
    local y2=$((y1 + F_H / 7 + 1)) w=$((F_NL / 5 + 2))
    add "$GLASS" none "polygon $x,$y2 $((x + 2)),$y1 $((x + w)),$y1 $((x + w)),$y2"
}

# cheatline: the livery stripe along the cabin
cheatline() {
    local y=$((F_YC + $(pct F_H 8)))
    add "$LIVERY" none "rectangle $((F_NOSE + F_NL / 3)),$y $((F_TAIL - F_CL + 4)),$((y + 1))"
}

# windows FROM_X TO_X STEP: a row of cabin windows
windows() {
    local y=$((F_TOP + $(pct F_H 28))) x prims=""
    for ((x = $1; x <= $2; x += $3)); do
        prims+="rectangle $x,$y $((x + 1)),$((y + 1)) "
    done
    add "$GLASS" none "$prims"
}

# door X WIDTH: a passenger door outline
door() {
    add none "$OUTLINE" "rectangle $1,$((F_TOP + 2)) $(($1 + $2)),$((F_YC + $(pct F_H 20)))"
}

# cargo_door X WIDTH: the large main-deck door of a freighter
cargo_door() {
    add 'rgba(0,0,0,0.06)' "$OUTLINE" "rectangle $1,$((F_TOP + 1)) $(($1 + $2)),$((F_YC + $(pct F_H 25)))"
}

# wing X_ROOT ROOT_CHORD SWEEP TIP_CHORD RISE ROOT_Y
# A wing (or stabiliser) seen edge-on: the tip lies SWEEP further aft and
# RISE higher than the root.
wing() {
    local x=$1 rc=$2 sw=$3 tc=$4 rise=$5 y=$6
    add "$METAL" "$OUTLINE" "polygon $x,$y $((x + sw)),$((y - rise - 1)) $((x + sw + tc)),$((y - rise))
        $((x + rc)),$((y + 1)) $((x + rc - 2)),$((y + 2)) $((x + 2)),$((y + 2))"
}

# low_wing X_ROOT ROOT_CHORD SWEEP TIP_CHORD RISE
low_wing() { wing "$1" "$2" "$3" "$4" "$5" $((F_BOT - 2)); }

# high_wing X_ROOT CHORD: a straight wing on top of the cabin
high_wing() {
    local x=$1 c=$2
    add "$METAL" "$OUTLINE" "path 'M $((x - 4)),$((F_TOP + 1)) Q $x,$((F_TOP - 5)) $((x + 6)),$((F_TOP - 5))
        L $((x + c)),$((F_TOP - 4)) Q $((x + c + 8)),$((F_TOP - 2)) $((x + c + 12)),$((F_TOP + 1)) Z'"
}

# nacelle X Y LENGTH HEIGHT [flat]: a turbofan pod with its intake and exhaust
nacelle() {
    local x=$1 y=$2 len=$3 h=$4 style=${5:-}
    local mid=$((x + $(pct len 62))) end=$((x + len))
    local q=$((h / 4)) lower_end=$((y + h - h / 4))
    [[ $style == flat ]] && lower_end=$((y + h))
    add "$COWL" "$OUTLINE" "path 'M $x,$((y + 1)) Q $x,$y $((x + 2)),$y L $mid,$y L $end,$((y + q))
        L $end,$lower_end L $mid,$((y + h)) L $((x + 2)),$((y + h)) Q $x,$((y + h)) $x,$((y + h - 1)) Z'"
    add "$DARK" none "ellipse $((x + 1)),$((y + h / 2)) 1,$((h / 2 - 1)) 0,360"
    add "$METAL" "$OUTLINE" "polygon $end,$((y + q + 1)) $((end + 3)),$((y + h / 2)) $end,$((lower_end - 1))"
}

# jet_engine X Y LENGTH HEIGHT [flat]: an under-wing pod hung on a pylon
jet_engine() {
    local x=$1 y=$2 len=$3
    add "$METAL" "$OUTLINE" "polygon $((x + $(pct len 35))),$((y + 1)) $((x + $(pct len 50))),$((y - 3))
        $((x + len + 4)),$((y - 3)) $((x + len)),$((y + 1))"
    nacelle "$@"
}

# prop_engine X Y LENGTH HEIGHT PROP_DIAMETER: turboprop nacelle, spinner, disc
prop_engine() {
    local x=$1 y=$2 len=$3 h=$4 r=$(($5 / 2))
    local cy=$((y + h / 2)) end=$((x + len))
    add "$COWL" "$OUTLINE" "path 'M $((x + 2)),$((y + 1)) Q $((x + 4)),$y $((x + 8)),$y L $((end - 8)),$y
        L $end,$((cy - 1)) L $end,$((cy + 1)) L $((end - 8)),$((y + h)) L $((x + 6)),$((y + h))
        Q $((x + 2)),$((y + h)) $((x + 2)),$((y + h - 2)) Z'"
    add "$PROP_DISC" none "ellipse $x,$cy 2,$r 0,360"
    add "$DARK" none "polygon $x,$((cy - r)) $((x + 1)),$((cy - r)) $((x + 1)),$((cy + r)) $x,$((cy + r))"
    add "$METAL" "$OUTLINE" "path 'M $((x + 2)),$((cy - 2)) Q $((x - 3)),$cy $((x + 2)),$((cy + 2)) Z'"
}

# fin X_ROOT ROOT_CHORD HEIGHT SWEEP TIP_CHORD: the vertical tail in livery colour
fin() {
    local x=$1 rc=$2 ht=$3 sw=$4 tc=$5
    FIN_X=$x FIN_TIP_X=$((x + sw)) FIN_TIP_Y=$((F_TOP - ht))
    add "$LIVERY" "$OUTLINE" "polygon $x,$F_TOP $FIN_TIP_X,$FIN_TIP_Y
        $((FIN_TIP_X + tc)),$FIN_TIP_Y $((x + rc)),$F_TOP"
}

# dorsal LENGTH HEIGHT: the fillet running forward from the fin root
dorsal() {
    add "$LIVERY" "$OUTLINE" "polygon $((FIN_X - $1)),$((F_TOP + 1)) $((FIN_X + 3)),$((F_TOP - $2)) $((FIN_X + 6)),$((F_TOP + 1))"
}

# t_tail CHORD SWEEP: tailplane mounted on top of the fin, with its bullet
t_tail() {
    local x=$((FIN_TIP_X - 3))
    wing "$x" "$1" "$2" $(($1 - 2)) 1 $((FIN_TIP_Y + 1))
    add "$LIVERY" "$OUTLINE" "ellipse $((x + 2)),$((FIN_TIP_Y + 1)) 3,2 0,360"
}

# low_tail X CHORD SWEEP: tailplane on the tail cone
low_tail() { wing "$1" "$2" "$3" $(($2 / 2)) 2 $((F_TOP + $(pct F_H 55))); }

# gear X LENGTH WHEEL_RADIUS [WHEELS]: a leg hanging from the belly
gear() {
    local x=$1 len=$2 r=$3 n=${4:-1}
    local y=$((F_BOT + len))
    add none "$OUTLINE" "line $x,$((F_BOT - 1)) $x,$y"
    if ((n == 1)); then
        add "$TYRE" none "circle $x,$y $((x + r)),$y"
    else
        add "$TYRE" none "circle $((x - r)),$y $((x - 2 * r)),$y circle $((x + r)),$y $((x + 2 * r)),$y"
    fi
}

# render FILE CAPTION: centre the collected drawing above the caption and save it
render() {
    convert -size "${WIDTH}x${HEIGHT}" "gradient:${SKY_TOP}-${SKY_BOTTOM}" \
        \( -size "${WIDTH}x${HEIGHT}" xc:none -strokewidth 1 "${D[@]}" -trim +repage \) \
        -gravity center -geometry +0-9 -composite \
        -font "$FONT" -pointsize 11 -fill '#14263a' -stroke none \
        -gravity south -annotate +0+5 "$2" \
        +dither -colors 128 "GIF:$OUT_DIR/$1"
    D=()
}

# ---------------------------------------------------------------- types
# Sizes are roughly to scale between types of one class, not across classes:
# the small turboprops are drawn larger than life so they stay readable.

beech() {
    fuselage 20 138 52 14 24 34
    fin 114 24 26 15 11
    t_tail 17 3
    cockpit; cheatline; windows 52 104 6; door 40 5
    low_wing 56 18 3 10 2
    gear 34 9 3; gear 70 9 4
    prop_engine 46 50 32 8 28
    render beech.gif "Beech 1900D"
}

emb120() {
    fuselage 12 144 52 16 20 32
    fin 112 30 27 20 11
    t_tail 18 4
    cockpit; cheatline; windows 46 110 8; door 36 6
    low_wing 56 20 4 11 2
    gear 28 9 3; gear 74 9 4
    prop_engine 45 48 38 10 34
    render emb120.gif "EMB-120"
}

dhc8() {
    fuselage 8 150 54 15 16 34
    fin 116 28 30 10 14
    t_tail 22 3
    cockpit; cheatline; windows 40 112 7; door 28 5
    high_wing 54 26
    prop_engine 48 $((F_TOP - 4)) 42 13 34
    gear 24 8 3
    add none "$OUTLINE" "line 80,$((F_TOP + 9)) 80,$((F_BOT + 9))"
    add "$TYRE" none "circle 80,$((F_BOT + 9)) 84,$((F_BOT + 9))"
    render dhc8.gif "DHC-8-300"
}

crj200() {
    fuselage 10 148 52 12 18 32
    fin 118 26 25 17 11
    t_tail 18 6
    cockpit; cheatline; windows 36 104 6; door 30 5
    low_wing 62 20 16 7 5
    nacelle 101 44 24 9
    gear 28 9 3; gear 80 9 4
    render crj200.gif "CRJ-200ER"
}

b727() {
    fuselage 8 152 52 13 16 34
    fin 118 28 28 18 12
    t_tail 20 7
    # centre engine: S-duct intake ahead of the fin, exhaust in the tail cone
    add "$BODY" "$OUTLINE" "path 'M 108,47 Q 110,40 118,40 L 126,41 L 126,47 Z'"
    add "$DARK" none "ellipse 109,44 1,3 0,360"
    add "$DARK" none "rectangle 150,48 152,52"
    cockpit; cheatline; windows 30 108 5; door 24 5
    low_wing 50 26 18 9 5
    nacelle 104 45 26 9
    gear 24 9 3; gear 78 9 4 2
    render B727-212ADV.gif "B727-212ADV"
}

b737_200() {
    fuselage 18 140 53 16 18 30
    fin 108 28 26 18 12
    dorsal 16 4
    low_tail 116 16 7
    cockpit; cheatline; windows 44 110 5; door 38 5
    low_wing 54 28 16 9 5
    jet_engine 56 55 34 7
    gear 36 8 3; gear 86 8 4 2
    render B737-200ADV.gif "B737-200ADV"
}

b737_300() {
    fuselage 14 146 52 15 18 30
    fin 112 28 27 19 12
    dorsal 18 4
    low_tail 120 16 7
    cockpit; cheatline; windows 40 114 5; door 34 5
    low_wing 58 28 16 9 5
    jet_engine 49 56 22 9 flat
    gear 32 9 3; gear 88 9 4 2
    render B737-300.gif "B737-300"
}

# the 757 passenger and freighter versions share everything but the cabin
b757() {
    fuselage 6 154 52 13 18 32
    fin 120 26 30 18 12
    low_tail 128 16 7
    cockpit; cheatline
    low_wing 60 28 18 9 5
    jet_engine 52 55 26 11
    gear 24 10 3; gear 92 10 4 2
}

b757_200() {
    b757
    windows 34 118 4; door 26 5
    render B757-200.gif "B757-200"
}

b757_200f() {
    b757
    cargo_door 28 16
    render B757-200F.gif "B757-200F"
}

b767_300er() {
    fuselage 6 154 50 18 20 34
    fin 118 30 29 18 13
    low_tail 126 18 7
    cockpit; cheatline; windows 36 118 4; door 28 6
    low_wing 58 32 18 10 5
    jet_engine 50 55 28 14
    gear 26 10 3; gear 94 10 5 2
    render B767-300ER.gif "B767-300ER"
}

md90_30() {
    fuselage 6 156 52 11 18 32
    fin 122 26 24 17 11
    t_tail 20 6
    cockpit; cheatline; windows 30 110 4; door 24 5
    low_wing 64 24 18 8 5
    nacelle 108 43 30 10
    gear 24 10 3; gear 88 10 4 2
    render MD-90-30.gif "MD-90-30"
}

dc9_30f() {
    fuselage 14 144 52 12 18 30
    fin 114 26 26 17 11
    t_tail 19 6
    cockpit; cheatline; cargo_door 32 14
    low_wing 58 24 16 8 5
    nacelle 100 44 28 8
    gear 32 9 3; gear 82 9 4 2
    render DC-9-30F.gif "DC-9-30F"
}

dc8_71f() {
    fuselage 4 156 52 11 18 30
    fin 126 26 24 18 11
    low_tail 132 14 6
    cockpit; cheatline; cargo_door 24 14
    low_wing 56 30 22 9 6
    jet_engine 70 50 20 9
    jet_engine 44 55 22 10
    gear 22 10 3; gear 90 10 4 2
    render DC-8-71F.gif "DC-8-71F"
}

dc10_30f() {
    fuselage 6 150 52 18 20 30
    fin 122 30 38 12 14
    # the third engine runs through the fin above the tail cone
    nacelle 118 $((F_TOP - 14)) 30 11
    low_tail 128 18 7
    cockpit; cheatline; cargo_door 30 16
    low_wing 56 32 20 10 5
    jet_engine 48 57 28 13
    gear 26 10 3; gear 92 10 5 2
    render DC-10-30F.gif "DC-10-30F"
}

mkdir -p "$OUT_DIR"
for draw in beech emb120 dhc8 crj200 b727 b737_200 b737_300 b757_200 b757_200f \
    b767_300er md90_30 dc9_30f dc8_71f dc10_30f; do
    "$draw"
done
echo "pictures written to $OUT_DIR"
