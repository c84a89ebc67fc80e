# The Debian package: `cpack -G DEB` in the build folder (scripts/package)
# makes combwise_<version>_<arch>.deb from the install rules, with the
# shared-library dependencies found by dpkg-shlibdeps.
set(CPACK_PACKAGE_NAME combwise)
set(CPACK_PACKAGE_VENDOR "Combwise developers")
set(CPACK_PACKAGE_CONTACT "Combwise developers <combwise@example.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hexagonal crossword puzzles to play, make and print")
set(CPACK_PACKAGE_DESCRIPTION
  "Combwise is a crossword on a honeycomb of 7, 10, 17 or 22 hexagons. Every\n\
hexagon has an inside word and an outside word, each with a clue, and the\n\
letters of a word may stand in any order around the hexagon.\n\
\n\
The game comes with hundreds of readymade puzzles, makes new ones from its\n\
dictionary with clues from WordNet, checks the board hexagon by hexagon and\n\
prints puzzles, solutions and clue lists. The command-line tool\n\
combwise-cli makes, checks and prints whole collections.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY combwise)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The board and the printed pages are laid out for Arial's measures, which
# the Liberation fonts share.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://combwise.example.org/")

include(CPack)
