# How a build folder is made ready. To be sourced.
# shellcheck shell=bash

# is_configured PRESET: whether its folder was made ready, and here. In one that was moved or copied all tells the place
# where it was made.
is_configured() {
  local made_for
  made_for=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "build/$1/CMakeCache.txt" 2>/dev/null) || return 1
  [[ $made_for -ef . && -e build/$1/build.ninja ]]
}

# configure PRESET [OPTION...]: as CMake does, but never into a folder made elsewhere.
configure() {
  is_configured "$1" || rm -rf "build/$1"
  cmake --preset "$@"
}
