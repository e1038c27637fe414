# Installs the build into a folder of its own and builds the hosts of examples/ against it, as somebody else would.
# COSTRUITO: the build folder; ESEMPI: the examples; LAVORO: where to work, emptied first; COMPILATORE_C, COMPILATORE,
# GENERATORE, CONFIGURAZIONE: as in the build.
file(REMOVE_RECURSE ${LAVORO})
set(installato ${LAVORO}/installato)

function(esegui)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

esegui(${CMAKE_COMMAND} --install ${COSTRUITO} --prefix ${installato})
foreach(esempio c cpp)
    esegui(${CMAKE_COMMAND} -S ${ESEMPI}/${esempio} -B ${LAVORO}/${esempio} -G ${GENERATORE}
        -DCMAKE_C_COMPILER=${COMPILATORE_C} -DCMAKE_CXX_COMPILER=${COMPILATORE} -DCMAKE_BUILD_TYPE=${CONFIGURAZIONE}
        -DCMAKE_PREFIX_PATH=${installato})
    esegui(${CMAKE_COMMAND} --build ${LAVORO}/${esempio})
endforeach()
