# Installation and packages. The tool looks for its files beside itself, so it
# lives in a directory of its own, which is the one for the images as well.
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set(CMAKE_INSTALL_PREFIX / CACHE PATH "Where the root of the installation is" FORCE)
endif()

set(home opt/cnatool)
set(doc usr/share/doc/cnatool)
# Directories of its own are not left to the installer's umask.
install(DIRECTORY DESTINATION ${home} DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(DIRECTORY DESTINATION ${doc}/examples DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(TARGETS cnatool DESTINATION ${home})
install(FILES packaging/FC_HBA_Conditions.txt DESTINATION ${home})
install(FILES man/cnatool.8 DESTINATION usr/share/man/man8)
install(FILES man/FC_HBA_Conditions.txt.5 DESTINATION usr/share/man/man5)
install(FILES completion/cnatool DESTINATION usr/share/bash-completion/completions)
install(FILES docs/automation.md DESTINATION ${doc})
install(DIRECTORY examples/blade DESTINATION ${doc}/examples
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

set(CPACK_GENERATOR DEB RPM)
set(CPACK_PACKAGE_NAME cnatool)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The cnatool founders")
set(CPACK_PACKAGE_CONTACT "The cnatool founders <root@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "Check and flash the converged network adapters of a blade server")
set(CPACK_RPM_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION_SUMMARY})
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# An upgrade keeps the administrator's conditions.
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/conffiles)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_LICENSE "All rights reserved")
set(CPACK_RPM_SPEC_MORE_DEFINE "%define _build_id_links none")
set(CPACK_RPM_USER_FILELIST "%config(noreplace) /${home}/FC_HBA_Conditions.txt")
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
  /opt /usr /usr/share /usr/share/doc /usr/share/man /usr/share/man/man5 /usr/share/man/man8
  /usr/share/bash-completion /usr/share/bash-completion/completions)
include(CPack)
