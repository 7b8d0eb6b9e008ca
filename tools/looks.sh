# The looks that a user's system may have; sourced, never run.
# shellcheck shell=bash

# Name, dots an inch, size of the screen, and what else is set: colours, fonts or a theme.
readonly looks=(
    "classic                96 1280x1024 classic"
    "classic-120           120 1280x1024 classic"
    "classic-144           144 1280x1024 classic"
    "classic-192           192 1600x1200 classic"
    "themed                 96 1280x1024 themed"
    "themed-192            192 1600x1200 themed"
    "contrast-black         96 1280x1024 black"
    "contrast-white         96 1280x1024 white"
    "contrast-black-large   96 1280x1024 black large-fonts"
    "large-fonts            96 1280x1024 classic large-fonts"
    "800x600                96 800x600   classic"
    "800x600-large-fonts    96 800x600   classic large-fonts"
    "640x480                96 640x480   classic"
    "640x480-large-fonts    96 640x480   classic large-fonts"
)

# Sets $look_dpi, $look_screen and $look_parts to the look of that name.
# shellcheck disable=SC2034  # for the caller
find_look() {
    local row name
    for row in "${looks[@]}"; do
        read -r name look_dpi look_screen look_parts <<<"$row"
        [[ $name == "$1" ]] && return
    done
    fail "no look is called $1"
}

# A font as the registry keeps it, with letters that are $1 pixels high at 96 dots an inch and of the weight $2.
font_value() {
    local height=$((0x100000000 - $1)) weight=$2 face="MS Shell Dlg" i bytes
    bytes=$(printf '%02x,%02x,%02x,%02x' $((height & 255)) $((height >> 8 & 255)) $((height >> 16 & 255)) \
        $((height >> 24 & 255)))
    for ((i = 0; i < 12; ++i)); do bytes+=,00; done
    bytes+=$(printf ',%02x,%02x,00,00' $((weight & 255)) $((weight >> 8)))
    for ((i = 0; i < 8; ++i)); do bytes+=,00; done
    for ((i = 0; i < 32; ++i)); do
        if ((i < ${#face})); then bytes+=$(printf ',%02x,00' "'${face:i:1}"); else bytes+=,00,00; fi
    done
    echo "hex:$bytes"
}

# Prints the registry file for one part of a look.
look_registry() {
    local height=19 # 14 points
    echo REGEDIT4
    case $1 in
        themed)
            cat <<'REG'

[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\ThemeManager]
"ThemeActive"="1"
"DllName"="C:\\windows\\resources\\themes\\light\\light.msstyles"
"ColorName"="Blue"
"SizeName"="NormalSize"
REG
            ;;
        classic | black | white)
            if [[ $1 != classic ]]; then
                printf '\n[HKEY_CURRENT_USER\\Control Panel\\Accessibility\\HighContrast]\n"Flags"="127"\n'
            fi
            printf '\n[HKEY_CURRENT_USER\\Control Panel\\Colors]\n'
            # The name of a colour, then its values in the classic, the black and the white scheme.
            awk -F'|' -v scheme="$1" '
                BEGIN { column["classic"] = 2; column["black"] = 3; column["white"] = 4 }
                { gsub(/ +$/, "", $1); gsub(/^ +| +$/, "", $(column[scheme])) }
                { printf "\"%s\"=\"%s\"\n", $1, $(column[scheme]) }' <<'COLOURS'
ActiveBorder          | 212 208 200 | 192 192 192 | 128 128 128
ActiveTitle           | 10 36 106   | 128 0 128   | 0 0 0
AppWorkSpace          | 128 128 128 | 0 0 0       | 128 128 128
Background            | 58 110 165  | 0 0 0       | 255 255 255
ButtonAlternateFace   | 181 181 181 | 192 192 192 | 192 192 192
ButtonDkShadow        | 64 64 64    | 255 255 255 | 0 0 0
ButtonFace            | 212 208 200 | 0 0 0       | 255 255 255
ButtonHilight         | 255 255 255 | 192 192 192 | 192 192 192
ButtonLight           | 212 208 200 | 255 255 255 | 192 192 192
ButtonShadow          | 128 128 128 | 128 128 128 | 128 128 128
ButtonText            | 0 0 0       | 255 255 255 | 0 0 0
GradientActiveTitle   | 166 202 240 | 128 0 128   | 0 0 0
GradientInactiveTitle | 192 192 192 | 0 128 0     | 255 255 255
GrayText              | 128 128 128 | 0 255 0     | 0 128 0
Hilight               | 10 36 106   | 128 0 128   | 0 0 0
HilightText           | 255 255 255 | 255 255 255 | 255 255 255
HotTrackingColor      | 0 0 200     | 128 128 255 | 0 0 0
InactiveBorder        | 212 208 200 | 255 255 255 | 192 192 192
InactiveTitle         | 128 128 128 | 0 128 0     | 255 255 255
InactiveTitleText     | 212 208 200 | 255 255 255 | 0 0 0
InfoText              | 0 0 0       | 255 255 0   | 0 0 0
InfoWindow            | 255 255 225 | 0 0 0       | 255 255 255
Menu                  | 212 208 200 | 0 0 0       | 255 255 255
MenuBar               | 212 208 200 | 0 0 0       | 255 255 255
MenuHilight           | 10 36 106   | 128 0 128   | 0 0 0
MenuText              | 0 0 0       | 255 255 255 | 0 0 0
Scrollbar             | 212 208 200 | 0 0 0       | 255 255 255
TitleText             | 255 255 255 | 255 255 255 | 255 255 255
Window                | 255 255 255 | 0 0 0       | 255 255 255
WindowFrame           | 0 0 0       | 255 255 255 | 0 0 0
WindowText            | 0 0 0       | 255 255 255 | 0 0 0
COLOURS
            ;;
        large-fonts)
            printf '\n[HKEY_CURRENT_USER\\Control Panel\\Desktop\\WindowMetrics]\n'
            printf '"%s"=%s\n' CaptionFont "$(font_value $height 700)"
            for name in SmCaptionFont MenuFont StatusFont MessageFont IconFont; do
                printf '"%s"=%s\n' $name "$(font_value $height 400)"
            done
            for name in CaptionHeight CaptionWidth MenuHeight MenuWidth; do printf '"%s"="26"\n' $name; done
            ;;
        *) fail "no look has a part $1" ;;
    esac
}

# Gives the prefix the parts of the look that was found.
wear_look() {
    local part file=$1/look.reg
    for part in $look_parts; do
        look_registry "$part" >"$file"
        # shellcheck disable=SC2154  # wine_env sets it
        env -u DISPLAY "$wine" regedit /S "$(windows_path "$file")" </dev/null >/dev/null 2>&1
        rm "$file"
    done
    wine_end
}
