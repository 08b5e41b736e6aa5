# velk_add_library(<target> SOVERSION <n> INCLUDE_ROOT <dir> SOURCES <files...>
#                  [PUBLIC_LINK <targets...>] [PRIVATE_LINK <targets...>])
#
# A library of the family, whose public headers are included as <velk/...>
# from INCLUDE_ROOT. Its sources are compiled once, with hidden visibility,
# into the object library <target>-objects, and those objects make two
# libraries:
#
#   <target>         the shared library libvelk-<...>.so.<n>, the one that is
#                    installed: its dynamic symbols are only what the public
#                    headers mark VELK_EXPORT.
#   <target>-static  an archive of the very same objects, never installed, for
#                    the programs of this tree (tests, tools, benchmarks),
#                    which also reach what the library keeps to itself.
#
# Both carry the same usage requirements; <target>-static links the -static
# form of the family libraries it stands on, so that a program holds one copy
# of each.
function(velk_add_library target)
    cmake_parse_arguments(ARG "" "SOVERSION;INCLUDE_ROOT" "SOURCES;PUBLIC_LINK;PRIVATE_LINK" ${ARGN})

    set(objects ${target}-objects)
    add_library(${objects} OBJECT ${ARG_SOURCES})
    set_target_properties(${objects} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        C_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(${objects} PUBLIC ${ARG_INCLUDE_ROOT})
    target_link_libraries(${objects} PUBLIC ${ARG_PUBLIC_LINK} PRIVATE ${ARG_PRIVATE_LINK})

    add_library(${target} SHARED $<TARGET_OBJECTS:${objects}>)
    add_library(velk::${target} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        VERSION ${ARG_SOVERSION}.0.0
        SOVERSION ${ARG_SOVERSION}
        EXPORT_NAME ${target}
        # Installed side by side, the libraries find one another wherever the
        # prefix is.
        INSTALL_RPATH "$ORIGIN")
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${ARG_INCLUDE_ROOT}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LINK} PRIVATE ${ARG_PRIVATE_LINK})
    # Every symbol a library needs must come from what it links: a missing
    # export of a family library shows here, not in a caller's program. The
    # sanitizers' runtime is only linked into programs, so not with them.
    if(NOT VELK_SANITIZE AND NOT VELK_TSAN AND NOT VELK_FUZZ)
        target_link_options(${target} PRIVATE LINKER:--no-undefined)
    endif()

    velk_static_forms(static_public ${ARG_PUBLIC_LINK})
    velk_static_forms(static_private ${ARG_PRIVATE_LINK})
    add_library(${target}-static STATIC $<TARGET_OBJECTS:${objects}>)
    target_include_directories(${target}-static PUBLIC ${ARG_INCLUDE_ROOT})
    target_link_libraries(${target}-static PUBLIC ${static_public} PRIVATE ${static_private})

    # Calls between the functions of one library bind inside it instead of
    # through the procedure linkage table: nothing interposes them, and the
    # XML tree's small functions are called per node.
    target_compile_options(${objects} PRIVATE -fno-semantic-interposition)
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)

    set_property(GLOBAL APPEND PROPERTY VELK_LIBRARIES ${target})
    set_property(GLOBAL APPEND PROPERTY VELK_HEADER_ROOTS "${ARG_INCLUDE_ROOT}")
endfunction()

# velk_link_family(<target> <PUBLIC|PRIVATE|INTERFACE> <targets...>)
#
# For the helper libraries of the tree (certificates, the simulator, tarn's
# pieces, the tests' support), which programs of both kinds link: each family
# library among the targets stands for its shared form in a program that uses
# the public interface (tarn, the simulator), and for its -static form in one
# marked with velk_internal_program (tests, benchmarks, the demo, fuzzing), so
# that no program holds two copies of a library.
function(velk_link_family target scope)
    set(items "")
    foreach(item IN LISTS ARGN)
        if(TARGET ${item}-static)
            list(APPEND items "$<IF:$<BOOL:$<TARGET_PROPERTY:VELK_INTERNAL>>,${item}-static,${item}>")
        else()
            list(APPEND items ${item})
        endif()
    endforeach()
    target_link_libraries(${target} ${scope} ${items})
endfunction()

# velk_internal_program(<target> <PUBLIC|PRIVATE> <targets...>): a program of
# the tree that reaches internals: it links the -static forms of the family
# libraries, directly and through the helper libraries.
function(velk_internal_program target scope)
    set_target_properties(${target} PROPERTIES VELK_INTERNAL ON)
    velk_static_forms(items ${ARGN})
    target_link_libraries(${target} ${scope} ${items})
endfunction()

# velk_static_forms(<out> <targets...>): the targets, with each family library
# replaced by its -static form.
function(velk_static_forms out)
    set(result "")
    foreach(item IN LISTS ARGN)
        if(TARGET ${item}-static)
            list(APPEND result ${item}-static)
        else()
            list(APPEND result ${item})
        endif()
    endforeach()
    set(${out} ${result} PARENT_SCOPE)
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
