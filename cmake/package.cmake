# Installation and packages. The tool looks for its files beside itself, so it
# lives in a directory of its own, which is the one for the images as well. It comes
# without a conditions file: what lies there is the administrator's.
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set(CMAKE_INSTALL_PREFIX / CACHE PATH "Where the root of the installation is" FORCE)
endif()

set(CPACK_PACKAGE_CONTACT "The cnatool maintainers <maintainers@users.noreply.c-seed-a997cd3b.example>")
set(home opt/cnatool)
set(doc usr/share/doc/cnatool)
set(generated ${PROJECT_BINARY_DIR}/packaging)

# Fills in a template and compresses it, always to the same bytes.
find_program(GZIP gzip REQUIRED)
function(install_compressed template name destination)
  configure_file(${template} ${generated}/${name} @ONLY)
  execute_process(COMMAND ${GZIP} -9nc ${generated}/${name} OUTPUT_FILE ${generated}/${name}.gz
    COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${generated}/${name}.gz DESTINATION ${destination})
endfunction()

# Directories of its own are not left to the installer's umask.
set(open_directory DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(open_files FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(DIRECTORY DESTINATION ${home} ${open_directory})
install(DIRECTORY DESTINATION ${doc} ${open_directory})
install(DIRECTORY examples/blade DESTINATION ${doc}/examples ${open_files} ${open_directory})
install(DIRECTORY contrib/ansible DESTINATION ${doc}/examples ${open_files} ${open_directory}
  PATTERN __pycache__ EXCLUDE)
install(TARGETS cnatool lscna DESTINATION ${home})
install(FILES completion/cnatool completion/lscna DESTINATION usr/share/bash-completion/completions)
install(FILES docs/automation.md CHANGELOG.md packaging/copyright
  packaging/FC_HBA_Conditions.txt.template DESTINATION ${doc})
install(FILES packaging/lintian-overrides DESTINATION usr/share/lintian/overrides RENAME cnatool)
install_compressed(man/cnatool.8.in cnatool.8 usr/share/man/man8)
install_compressed(man/lscna.8.in lscna.8 usr/share/man/man8)
install_compressed(man/FC_HBA_Conditions.txt.5.in FC_HBA_Conditions.txt.5 usr/share/man/man5)
install_compressed(packaging/changelog.in changelog ${doc})

set(CPACK_GENERATOR DEB RPM)
set(CPACK_PACKAGE_NAME cnatool)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The cnatool founders")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "Check and flash the converged network adapters of a blade server")
set(CPACK_PACKAGE_DESCRIPTION
"cnatool runs the command-line interface of the adapters' vendor, reads its
reports and checks that the storage attached to the selected controllers is
valid, as a conditions file lays down, and of the same vendor across ports or
controllers. On request it flashes firmware and BIOS images, one flash for each
adapter. Installation and update frameworks read its answer from the exit
status.")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_STRIP_FILES ON)

# The program is linked statically and starts commands through /bin/sh, which every
# Debian system has.
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/postrm)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_LICENSE "All rights reserved")
set(CPACK_RPM_PACKAGE_GROUP "System Environment/Base")
set(CPACK_RPM_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_RPM_PACKAGE_AUTOREQPROV no)
set(CPACK_RPM_PACKAGE_REQUIRES /bin/sh)
set(CPACK_RPM_POST_UNINSTALL_SCRIPT_FILE ${PROJECT_SOURCE_DIR}/packaging/postun)
set(CPACK_RPM_SPEC_MORE_DEFINE "%define _build_id_links none
%define packager ${CPACK_PACKAGE_CONTACT}")
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
  /opt /usr /usr/share /usr/share/doc /usr/share/man /usr/share/man/man5 /usr/share/man/man8
  /usr/share/bash-completion /usr/share/bash-completion/completions
  /usr/share/lintian /usr/share/lintian/overrides)
include(CPack)
