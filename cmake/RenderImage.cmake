# Renders one SVG source at the three scales that the windows ask for: NAME.png, NAME@1.5x.png and NAME@2x.png.
# Run with cmake -P and RSVG_CONVERT, SOURCE, DESTINATION (a path without its ending), WIDTH and HEIGHT (points) set.

set(half_points 2 3 4) # a scale in halves, so that whole numbers do
set(suffixes "" "@1.5x" "@2x")
foreach(scale suffix IN ZIP_LISTS half_points suffixes)
    math(EXPR width "(${WIDTH} * ${scale} + 1) / 2")
    math(EXPR height "(${HEIGHT} * ${scale} + 1) / 2")
    execute_process(COMMAND "${RSVG_CONVERT}" --width ${width} --height ${height}
                            --output "${DESTINATION}${suffix}.png" "${SOURCE}"
                    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
