# The Debian packages: kovaris is what a shop needs, kovaris-scenario runs scripts against the module. What they depend on
# dpkg-shlibdeps reads from what is linked; beside it stands what is only looked for at run time.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kovaris)
set(CPACK_PACKAGE_VERSION ${KOVARIS_PACKAGE_VERSION})
set(CPACK_PACKAGE_CONTACT ${KOVARIS_MAINTAINER})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_OUTPUT_FILE_PREFIX ${CMAKE_BINARY_DIR}/packages)
# Packed by so many at once whatever the computer has: blocks, and so the bytes, are the same everywhere.
set(CPACK_THREADS 2)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL application scenario)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)

set(CPACK_DEBIAN_APPLICATION_PACKAGE_NAME kovaris)
set(CPACK_COMPONENT_APPLICATION_DESCRIPTION
"front-desk agenda for pet shops and veterinary clinics
Books baths, grooming, consultations and whatever else a pet shop offers, for
registered and for new customers, and shows each day page by page. A shop's
data lies in one file of this computer, or on a PostgreSQL server for several
desks. All that is on the screen is in Brazilian Portuguese.
.
agenda-data makes, checks, backs up and copies shops, and brings registers in
and out as CSV files.")
# Its own fonts are measured for paper; the words of the toolkit's dialogs are Portuguese, too.
set(CPACK_DEBIAN_APPLICATION_PACKAGE_DEPENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SUGGESTS "kovaris-scenario, cups")

set(CPACK_DEBIAN_SCENARIO_PACKAGE_NAME kovaris-scenario)
set(CPACK_COMPONENT_SCENARIO_DESCRIPTION
"runner of scripts against the module of the Kovaris agenda
Loads the module of the installed agenda, does what a script says a person
does, and prints everything that crosses the module's borders: for those who
bring it into another host, or look into a fault of it.")
set(CPACK_DEBIAN_SCENARIO_PACKAGE_DEPENDS "kovaris (= ${KOVARIS_PACKAGE_VERSION})")

include(CPack)
