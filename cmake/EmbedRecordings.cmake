# Writes a C++ source that holds the wave files byte by byte.
# Usage: cmake -DOUTPUT=file.cpp -DFILES=a.wav;b.wav -P EmbedRecordings.cmake
cmake_minimum_required(VERSION 3.23)
set(arrays "")
set(entries "")
set(count 0)
foreach(file IN LISTS FILES)
  get_filename_component(name "${file}" NAME_WE)
  file(READ "${file}" hex HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${hex}")
  string(APPEND arrays "constexpr unsigned char k${name}[] = {${bytes}};\n")
  string(APPEND entries "    {\"${name}\", k${name}},\n")
  math(EXPR count "${count} + 1")
endforeach()
file(WRITE "${OUTPUT}" "// Made from the files in sounds/recordings by the build.
#include \"sounds/recordings.h\"

namespace thistle {

namespace {

${arrays}
constexpr desktop::WaveImage kRecordings[] = {
${entries}};

}  // namespace

std::span<const desktop::WaveImage> AllRecordings() { return kRecordings; }

}  // namespace thistle
")
