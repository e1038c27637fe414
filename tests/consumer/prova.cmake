# Installs the build into a folder of its own, builds the outside project against it and runs what comes out.
# COSTRUITO: the build folder; LAVORO: where to work, emptied first; COMPILATORE, GENERATORE, CONFIGURAZIONE: as in
# the build.
file(REMOVE_RECURSE ${LAVORO})
set(installato ${LAVORO}/installato)

function(esegui)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

esegui(${CMAKE_COMMAND} --install ${COSTRUITO} --prefix ${installato})
esegui(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/ospite -B ${LAVORO}/costruito -G ${GENERATORE}
    -DCMAKE_CXX_COMPILER=${COMPILATORE} -DCMAKE_BUILD_TYPE=${CONFIGURAZIONE} -DCMAKE_PREFIX_PATH=${installato})
esegui(${CMAKE_COMMAND} --build ${LAVORO}/costruito)
esegui(${LAVORO}/costruito/ospite ${LAVORO}/costruito/parte.so)
