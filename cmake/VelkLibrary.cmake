# velk_add_library(<target> SOVERSION <n> INCLUDE_ROOT <dir> SOURCES <files...>
#                  [PUBLIC_LINK <targets...>] [PRIVATE_LINK <targets...>])
#
# A shared library libvelk-<...>.so.<n> whose public headers are included as
# <velk/...> from INCLUDE_ROOT.
function(velk_add_library target)
    cmake_parse_arguments(ARG "" "SOVERSION;INCLUDE_ROOT" "SOURCES;PUBLIC_LINK;PRIVATE_LINK" ${ARGN})
    add_library(${target} SHARED ${ARG_SOURCES})
    add_library(velk::${target} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        VERSION ${ARG_SOVERSION}.0.0
        SOVERSION ${ARG_SOVERSION}
        EXPORT_NAME ${target})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${ARG_INCLUDE_ROOT}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LINK} PRIVATE ${ARG_PRIVATE_LINK})
    # Calls between the functions of one library bind inside it instead of
    # through the procedure linkage table: nothing interposes them, and the
    # XML tree's small functions are called per node.
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    set_property(GLOBAL APPEND PROPERTY VELK_LIBRARIES ${target})
    set_property(GLOBAL APPEND PROPERTY VELK_HEADER_ROOTS "${ARG_INCLUDE_ROOT}")
endfunction()

# Sources of one library folder: its .cpp files, recursively, except those in
# the sub-folders named in EXCLUDE (which belong to other libraries).
function(velk_collect_sources out dir)
    cmake_parse_arguments(ARG "" "" "EXCLUDE" ${ARGN})
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${dir}/*.cpp")
    foreach(excluded IN LISTS ARG_EXCLUDE)
        list(FILTER found EXCLUDE REGEX "^${dir}/${excluded}/")
    endforeach()
    set(${out} ${found} PARENT_SCOPE)
endfunction()
