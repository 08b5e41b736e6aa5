# cmake --install: libraries, headers, a CMake package (find_package(velk-erp-tarn))
# and a pkg-config file (pkg-config --cflags --libs velk-erp-tarn).
include(CMakePackageConfigHelpers)

get_property(velk_libraries GLOBAL PROPERTY VELK_LIBRARIES)
install(TARGETS ${velk_libraries} EXPORT VelkTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/foundation/velk ${PROJECT_SOURCE_DIR}/velk
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.hpp" PATTERN "*.h" PATTERN "*.proto")
# The headers protoc made of the note's messages, which the public interface
# of the document generation from NotaFiscal names.
get_property(velk_generated_roots GLOBAL PROPERTY VELK_GENERATED_HEADER_ROOTS)
foreach(root IN LISTS velk_generated_roots)
    install(DIRECTORY ${root}/velk DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.pb.h")
endforeach()

set(velk_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/velk-erp-tarn)
install(EXPORT VelkTargets NAMESPACE velk:: DESTINATION ${velk_cmake_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/velk-erp-tarnConfig.cmake.in
    ${PROJECT_BINARY_DIR}/velk-erp-tarnConfig.cmake INSTALL_DESTINATION ${velk_cmake_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velk-erp-tarnConfigVersion.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velk-erp-tarnConfig.cmake ${PROJECT_BINARY_DIR}/velk-erp-tarnConfigVersion.cmake
    DESTINATION ${velk_cmake_dir})

list(REVERSE velk_libraries)
set(velk_pkg_libs "")
foreach(library IN LISTS velk_libraries)
    string(APPEND velk_pkg_libs " -l${library}")
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/cmake/velk-erp-tarn.pc.in ${PROJECT_BINARY_DIR}/velk-erp-tarn.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/velk-erp-tarn.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
