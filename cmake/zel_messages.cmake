# Message catalogues: src/platform/messages/<language>.po is checked and compiled by msgfmt, and its bytes are built into `target`.
find_program(ZEL_MSGFMT msgfmt REQUIRED)

function(zel_embed_messages target language)
    set(po "${CMAKE_SOURCE_DIR}/src/platform/messages/${language}.po")
    set(mo "${CMAKE_BINARY_DIR}/messages/${language}.mo")
    set(source "${CMAKE_BINARY_DIR}/messages/embedded_messages.cpp")
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/messages")
    # Keys carry no placeholders, so gettext's comparison of formats (--check-format) has nothing to compare; tests check the texts.
    add_custom_command(OUTPUT "${source}"
        COMMAND "${ZEL_MSGFMT}" --check-header --check-domain -o "${mo}" "${po}"
        COMMAND "${CMAKE_COMMAND}" -DBYTES=${mo} -DSOURCE=${source} -P "${CMAKE_SOURCE_DIR}/cmake/embed_bytes.cmake"
        DEPENDS "${po}" "${CMAKE_SOURCE_DIR}/cmake/embed_bytes.cmake"
        COMMENT "Messages ${language}.po" VERBATIM)
    target_sources(${target} PRIVATE "${source}")
endfunction()
