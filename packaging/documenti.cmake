# The guides as pages to read: HTML that is whole in itself, and a PDF for the operator's.
find_program(PANDOC pandoc REQUIRED)
find_program(WEASYPRINT weasyprint REQUIRED)
set(pagine ${CMAKE_CURRENT_BINARY_DIR}/pagine)
set(stile ${CMAKE_CURRENT_SOURCE_DIR}/documenti/guida.css)
set(filtro ${CMAKE_CURRENT_SOURCE_DIR}/documenti/figure.lua)
file(MAKE_DIRECTORY ${pagine})

# giacenza_pagina(NAME LANGUAGE TITLE pictures...): docs/NAME.md as NAME.html.
function(giacenza_pagina nome lingua titolo)
    add_custom_command(OUTPUT ${pagine}/${nome}.html
        DEPENDS ${PROJECT_SOURCE_DIR}/docs/${nome}.md ${stile} ${filtro} ${ARGN}
        COMMAND ${PANDOC} --from gfm --to html5 --standalone --self-contained --toc
            --toc-depth 2 --shift-heading-level-by -1 --lua-filter ${filtro}
            --metadata "pagetitle=${titolo}" --metadata lang=${lingua} --css ${stile}
            --resource-path ${PROJECT_SOURCE_DIR}/docs --output ${pagine}/${nome}.html ${PROJECT_SOURCE_DIR}/docs/${nome}.md
        COMMENT "Making ${nome}.html" VERBATIM)
endfunction()

file(GLOB immagini CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/immagini/guida/*.png)
giacenza_pagina(guida it "Guida dell'operatore" ${immagini})
giacenza_pagina(integrators en "Integrator's guide")
giacenza_pagina(security en "Security")
add_custom_command(OUTPUT ${pagine}/guida.pdf DEPENDS ${pagine}/guida.html
    COMMAND ${WEASYPRINT} -q ${pagine}/guida.html ${pagine}/guida.pdf COMMENT "Making guida.pdf" VERBATIM)
add_custom_target(documenti ALL DEPENDS ${pagine}/guida.html ${pagine}/guida.pdf ${pagine}/integrators.html
    ${pagine}/security.html)

install(FILES ${pagine}/guida.html ${pagine}/guida.pdf DESTINATION ${doc_deposito})
install(FILES ${pagine}/integrators.html ${pagine}/security.html DESTINATION ${doc_sviluppo} COMPONENT sviluppo)
