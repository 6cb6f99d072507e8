# Names the places of a page for Doxygen as the sites that show Markdown do, so that links inside the
# page lead there in both: "### x *= x keeps the sign" is #x--x-keeps-the-sign.
/^```/ { inCode = !inCode }

!inCode && /^###? / {
    place = tolower($0)
    sub(/^#+ /, "", place)
    gsub(/[^a-z0-9 _-]/, "", place)
    gsub(/ /, "-", place)
    $0 = $0 " {#" place "}"
}

{ print }
