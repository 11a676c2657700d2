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
function(compress template name)
  configure_file(${template} ${generated}/${name} @ONLY)
  execute_process(COMMAND ${GZIP} -9nkf ${generated}/${name} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The release stands beside the version in the changelog's newest section.
file(STRINGS CHANGELOG.md newest REGEX "^## " LIMIT_COUNT 1)
if(NOT newest MATCHES "^## ${PROJECT_VERSION}-([0-9]+)$")
  message(FATAL_ERROR "CHANGELOG.md must begin with a section \"## ${PROJECT_VERSION}-RELEASE\", not \"${newest}\"")
endif()
set(release ${CMAKE_MATCH_1})
# Both follow SOURCE_DATE_EPOCH.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
string(TIMESTAMP seconds "%s" UTC)

# Directories of its own are not left to the installer's umask. The documents lie as they
# do in the source tree, so that what they name is there.
set(open_directory DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(open_files FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(DIRECTORY DESTINATION ${home} ${open_directory})
install(DIRECTORY DESTINATION ${doc} ${open_directory})
install(DIRECTORY contrib docs examples DESTINATION ${doc} ${open_files} ${open_directory}
  PATTERN __pycache__ EXCLUDE)
install(FILES README.md CHANGELOG.md packaging/copyright DESTINATION ${doc})
install(TARGETS cnatool lscna DESTINATION ${home})
install(FILES completion/cnatool completion/lscna DESTINATION usr/share/bash-completion/completions)
foreach(page cnatool.8 lscna.8 FC_HBA_Conditions.txt.5)
  string(REGEX MATCH ".$" section ${page})
  compress(man/${page}.in ${page})
  install(FILES ${generated}/${page}.gz DESTINATION usr/share/man/man${section})
endforeach()

# What only a .deb holds; packaging/deb.cmake adds it.
set(CPACK_DEBIAN_SHARE ${generated}/deb)
compress(packaging/changelog.in changelog.Debian)
configure_file(${generated}/changelog.Debian.gz ${CPACK_DEBIAN_SHARE}/doc/cnatool/changelog.Debian.gz COPYONLY)
configure_file(packaging/lintian-overrides ${CPACK_DEBIAN_SHARE}/lintian/overrides/cnatool COPYONLY)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/packaging/deb.cmake)

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
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/postrm)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE ${release})
set(CPACK_RPM_PACKAGE_LICENSE "All rights reserved")
set(CPACK_RPM_PACKAGE_GROUP "System Environment/Base")
set(CPACK_RPM_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_RPM_PACKAGE_AUTOREQPROV no)
set(CPACK_RPM_PACKAGE_REQUIRES /bin/sh)
set(CPACK_RPM_POST_UNINSTALL_SCRIPT_FILE ${PROJECT_SOURCE_DIR}/packaging/postun)
set(CPACK_RPM_SPEC_MORE_DEFINE "%define _build_id_links none
%define packager ${CPACK_PACKAGE_CONTACT}
%define _buildhost localhost
%define use_source_date_epoch_as_buildtime 1
%define __os_install_post find %{buildroot} -exec touch -hd @${seconds} {} +")
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
  /opt /usr /usr/share /usr/share/doc /usr/share/man /usr/share/man/man5 /usr/share/man/man8
  /usr/share/bash-completion /usr/share/bash-completion/completions)
include(CPack)
