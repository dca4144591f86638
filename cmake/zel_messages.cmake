# Message catalogues: <language>.po is checked and compiled by msgfmt, and built into the library as bytes.
function(zel_embed_messages target language)
endfunction()
