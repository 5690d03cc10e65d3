# What makes the program one of Windows: icon, version, manifest, no console. Included where its target is.
find_program(ICOTOOL icotool REQUIRED)
set(windows ${PROJECT_SOURCE_DIR}/packaging/windows)
set(icons ${PROJECT_SOURCE_DIR}/packaging/icons)
set(made ${CMAKE_CURRENT_BINARY_DIR}/windows)
file(MAKE_DIRECTORY ${made})
set(pictures "")
foreach(size 16 24 32 48 64 128)
    list(APPEND pictures ${icons}/${size}.png)
endforeach()
# The largest stays a PNG, as Windows has it.
add_custom_command(OUTPUT ${made}/tavrune.ico
    COMMAND ${ICOTOOL} --create --output=${made}/tavrune.ico ${pictures} --raw=${icons}/256.png
    DEPENDS ${pictures} ${icons}/256.png)
configure_file(${windows}/tavrune.manifest.in ${made}/tavrune.manifest @ONLY)
configure_file(${windows}/tavrune.rc.in ${made}/tavrune.rc @ONLY)
set_property(SOURCE ${made}/tavrune.rc PROPERTY OBJECT_DEPENDS ${made}/tavrune.ico ${made}/tavrune.manifest)
target_sources(tavrune PRIVATE ${made}/tavrune.rc)
set_target_properties(tavrune PROPERTIES WIN32_EXECUTABLE ON)
