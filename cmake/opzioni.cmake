# A warning ends the build where the tree is worked on (the presets say so); a newer compiler's must not end anyone else's.
set(GIACENZA_ERRORI $<$<BOOL:${GIACENZA_WERROR}>:-Werror>)

# Usage requirements that every target of ours takes: no flag is set globally.
add_library(giacenza_opzioni INTERFACE)
target_compile_features(giacenza_opzioni INTERFACE cxx_std_20)
target_compile_options(giacenza_opzioni INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast ${GIACENZA_ERRORI}
    # At -O3, GCC 12 sees overlapping copies in the standard string's operator+ that are not there.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
target_compile_definitions(giacenza_opzioni INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(GIACENZA_COPERTURA)
    target_compile_options(giacenza_opzioni INTERFACE --coverage)
    target_link_options(giacenza_opzioni INTERFACE --coverage)
endif()
if(GIACENZA_SANITIZE)
    target_compile_options(giacenza_opzioni INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(giacenza_opzioni INTERFACE -fsanitize=address,undefined)
endif()

if(GIACENZA_FUZZ)
    target_compile_options(giacenza_opzioni INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(giacenza_opzioni INTERFACE -fsanitize=address,undefined)
endif()

# giacenza_porta(TARGET ROOM SCOPE): lets the target, and with SCOPE PUBLIC who links it, include the headers of one room, of
# src/ or of the desk, as "room/header.h", and of no other. The folder holds a link to the room alone.
function(giacenza_porta nome stanza ambito)
    set(porta ${PROJECT_BINARY_DIR}/stanze/${nome})
    set(cartella ${PROJECT_SOURCE_DIR}/src/${stanza})
    if(stanza MATCHES "^desk/")
        set(cartella ${PROJECT_SOURCE_DIR}/${stanza})
    endif()
    cmake_path(GET stanza PARENT_PATH sopra)
    file(MAKE_DIRECTORY ${porta}/${sopra})
    file(CREATE_LINK ${cartella} ${porta}/${stanza} SYMBOLIC)
    target_include_directories(${nome} ${ambito} ${porta})
endfunction()

# giacenza_stanza(TARGET ROOM sources...): a room, a static, position-independent library.
function(giacenza_stanza nome stanza)
    giacenza_libreria(${nome} ${ARGN})
    giacenza_porta(${nome} ${stanza} PUBLIC)
endfunction()

# giacenza_libreria(NAME sources...): a static, position-independent library of ours. With GIACENZA_STANZE_CONDIVISE it is a
# shared one that shows everything, so that tools/mutazioni can put a changed one in its place without linking any test.
function(giacenza_libreria nome)
    if(GIACENZA_STANZE_CONDIVISE)
        add_library(${nome} SHARED ${ARGN})
        set_target_properties(${nome} PROPERTIES CXX_VISIBILITY_PRESET default C_VISIBILITY_PRESET default
            VISIBILITY_INLINES_HIDDEN OFF)
    else()
        add_library(${nome} STATIC ${ARGN})
    endif()
    target_link_libraries(${nome} PRIVATE giacenza_opzioni PUBLIC giacenza_interfacce)
    set_target_properties(${nome} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# giacenza_parte(NAME sources...): a plug-in that holds outside parts; it sees the public headers only.
function(giacenza_parte nome)
    add_library(${nome} MODULE ${ARGN})
    target_link_libraries(${nome} PRIVATE giacenza_opzioni giacenza_interfacce)
    set_target_properties(${nome} PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${GIACENZA_CARTELLA_PARTI})
    install(TARGETS ${nome} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/giacenza COMPONENT libreria)
endfunction()
