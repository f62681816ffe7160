# What an installed tree and the Debian package hold besides the programs and
# libraries (whose folders the top CMakeLists.txt sets): the README and the
# JSON schema of hipjobs' output.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/schema/hipjobs.schema.json
    DESTINATION share/doc/${ZK_PACKAGE_NAME})

set(ZK_PACKAGE_CONTACT "zkSceneParserHoudini maintainers" CACHE STRING
    "Maintainer field of the Debian package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${ZK_PACKAGE_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${ZK_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Houdini scene parser plugin for a render-queue manager, and the hipjobs tool")
set(CPACK_PACKAGE_DESCRIPTION
    "Reads Houdini scene files as text and fills a render-queue manager's job records; hipjobs prints the jobs of scenes and folders of scenes as tables, JSON Lines or summaries.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
# Qt's core library is the one thing a farm machine must bring; the C and C++
# runtimes come with every Debian system.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6core6 (>= 6.4)")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
set(CPACK_STRIP_FILES ON)
include(CPack)
