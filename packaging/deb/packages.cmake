# The Debian packages tavimor and tavimor-cli, one for each component. `cpack` makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tavimor)
set(CPACK_PACKAGE_VENDOR "the Tavimor developers")
set(CPACK_PACKAGE_CONTACT "the Tavimor developers <developers@tavimor.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "fit a polynomial to a function tabulated on a grid")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.tavimor.example/)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/finish.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL tavimor-cli)
if(TAVIMOR_WINDOWS)
  list(APPEND CPACK_COMPONENTS_ALL tavimor)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(what
"Tavimor fits the full tensor-product polynomial in one to four variables, by
least squares, to a function given at every point of a grid, lists each
coefficient beside its term, and evaluates the fit at any point. A problem is
kept as a pair of text files.")

set(CPACK_DEBIAN_TAVIMOR_PACKAGE_NAME tavimor)
set(CPACK_DEBIAN_TAVIMOR_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TAVIMOR_PACKAGE_RECOMMENDS tavimor-cli)
set(CPACK_DEBIAN_TAVIMOR_DESCRIPTION "${what}
.
This package holds the program with windows, its manual and examples.")

# Linked statically, it depends on no package.
set(CPACK_DEBIAN_TAVIMOR-CLI_PACKAGE_NAME tavimor-cli)
set(CPACK_DEBIAN_TAVIMOR-CLI_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_TAVIMOR-CLI_PACKAGE_SUGGESTS tavimor)
set(CPACK_DEBIAN_TAVIMOR-CLI_DESCRIPTION "${what}
.
This package holds the program for the command line.")

include(CPack)
