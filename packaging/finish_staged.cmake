# Run by cpack between staging and packing: what belongs into the package and to no other installation.
file(GLOB_RECURSE programs ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/*)
# The compiler's signature is nobody's business there.
execute_process(COMMAND ${CPACK_TAVRUNE_STRIP} --strip-all --remove-section=.comment --remove-section=.note ${programs}
    COMMAND_ERROR_IS_FATAL ANY)
set(overrides ${CPACK_TEMPORARY_DIRECTORY}/usr/share/lintian/overrides)
file(MAKE_DIRECTORY ${overrides})
file(COPY_FILE ${CPACK_TAVRUNE_OVERRIDES} ${overrides}/tavrune)
