# Refuses includes that go past the layers and folders: cmake -DFILES=a.cpp;b.h [-DSTAMP=file] -P fence.cmake
# A file names what it includes of the program as "folder/name.h", of its own folder or of one that stands in
# front of it here.
set(FOLDERS toolkit geometry navigation procedure chart findings startup editor program desktop)

foreach(file IN LISTS FILES)
  get_filename_component(folder ${file} DIRECTORY)
  get_filename_component(folder ${folder} NAME)
  list(FIND FOLDERS ${folder} own)
  file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" name "${include}")
    string(REGEX MATCH "^([a-z]+)/[a-z0-9_]+\\.h$" known "${name}")
    list(FIND FOLDERS "${CMAKE_MATCH_1}" other)
    if(NOT known OR other EQUAL -1)
      message(SEND_ERROR "${file}:\n  \"${name}\" does not name its folder and its file")
    elseif(other GREATER own)
      message(SEND_ERROR "${file}:\n  ${folder} must not know ${CMAKE_MATCH_1}, which stands above it")
    endif()
  endforeach()
endforeach()
if(STAMP)
  file(TOUCH ${STAMP})
endif()
