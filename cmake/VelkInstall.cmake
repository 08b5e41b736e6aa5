# cmake --install: libraries, headers, a CMake package (find_package(velk-erp-tarn))
# and a pkg-config file (pkg-config --cflags --libs velk-erp-tarn).
include(CMakePackageConfigHelpers)

get_property(velk_libraries GLOBAL PROPERTY VELK_LIBRARIES)
install(TARGETS ${velk_libraries} EXPORT VelkTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The public headers. detail/ folders and the document builders and writers
# (layout_4_00, layout_3_10) stay in the tree: nothing of theirs is exported.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/foundation/velk ${PROJECT_SOURCE_DIR}/velk
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.hpp" PATTERN "*.h"
    PATTERN "detail" EXCLUDE PATTERN "layout_4_00" EXCLUDE PATTERN "layout_3_10" EXCLUDE)
# The few headers of detail/ folders that public classes stand on: the bases
# of the fiscal model's tax groups, the holder of a class's hidden data, the
# event types and the layout version of the GTIN query. And the .proto files
# of the note, for callers that make the JSON in other languages.
set(velk_detail_headers_in_use
    foundation/velk/erp/fiscal/detail/cofins_sobre_base.hpp
    foundation/velk/erp/fiscal/detail/credito_simples_nacional.hpp
    foundation/velk/erp/fiscal/detail/icms_proprio.hpp
    foundation/velk/erp/fiscal/detail/icms_retido_anteriormente.hpp
    foundation/velk/erp/fiscal/detail/icms_st.hpp
    foundation/velk/erp/fiscal/detail/origem_csosn.hpp
    foundation/velk/erp/fiscal/detail/origem_cst.hpp
    foundation/velk/erp/fiscal/detail/pis_sobre_base.hpp
    foundation/velk/erp/fiscal/detail/valores_fcp.hpp
    velk/erp/tarn/detail/valor_oculto.hpp
    velk/erp/tarn/nfe/detail/tipo_evento.hpp
    velk/erp/tarn/nfe/sefaz_data/detail/versao_layout_consulta_gtin.hpp)
file(GLOB velk_protos RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/velk/erp/tarn/nfe/detail/protobuf/*.proto)
foreach(file IN LISTS velk_detail_headers_in_use velk_protos)
    string(REGEX REPLACE "^foundation/" "" installed ${file})
    get_filename_component(folder ${installed} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${file} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()
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

# pkg-config files that hold wherever the tree is installed: the prefix is
# found from the folder of the .pc file itself, whatever --prefix was given.
list(REVERSE velk_libraries)
set(velk_pkg_libs "")
foreach(library IN LISTS velk_libraries)
    string(APPEND velk_pkg_libs " -l${library}")
endforeach()
set(velk_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
    set(velk_pc_prefix ${CMAKE_INSTALL_PREFIX})
else()
    file(RELATIVE_PATH velk_pc_up /${velk_pkgconfig_dir} /)
    string(REGEX REPLACE "/$" "" velk_pc_up ${velk_pc_up})
    set(velk_pc_prefix "\${pcfiledir}/${velk_pc_up}")
endif()
foreach(name IN ITEMS velk-erp-tarn velk-erp-tarn-c)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${velk_pkgconfig_dir})
endforeach()
