# The layers of the program. Each is a static library that sees the headers of the layers below it and no
# others: a layer's headers are reached through a folder of links made for it in the build tree, so that an
# include of something above fails to build, and a call of it fails to link.

function(tarvex_add_layer layer)
  cmake_parse_arguments(ARG "" "" "ABOVE" ${ARGN})
  add_library(tarvex_${layer} STATIC)
  set_target_properties(tarvex_${layer} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(tarvex_${layer} PUBLIC ${CMAKE_BINARY_DIR}/layers/${layer})
  foreach(lower IN LISTS ARG_ABOVE)
    target_link_libraries(tarvex_${layer} PUBLIC tarvex_${lower})
  endforeach()
endfunction()

# Adds NAME.h and NAME.cpp, whichever exist in the current folder, to the layer.
function(tarvex_layer_files layer)
  foreach(name IN LISTS ARGN)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${name}.cpp)
    set(header ${CMAKE_CURRENT_SOURCE_DIR}/${name}.h)
    if(NOT EXISTS ${source} AND NOT EXISTS ${header})
      message(FATAL_ERROR "neither ${name}.h nor ${name}.cpp in ${CMAKE_CURRENT_SOURCE_DIR}")
    endif()
    if(EXISTS ${source})
      target_sources(tarvex_${layer} PRIVATE ${source})
    endif()
    if(EXISTS ${header})
      get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
      set(view ${CMAKE_BINARY_DIR}/layers/${layer}/${folder})
      get_filename_component(sub ${name} DIRECTORY)
      file(MAKE_DIRECTORY ${view}/${sub})
      file(CREATE_LINK ${header} ${view}/${name}.h SYMBOLIC)
      target_sources(tarvex_${layer} PRIVATE ${header})
    endif()
  endforeach()
endfunction()

# Holds the includes of all sources against the folders at every build; nothing is compiled before.
function(tarvex_fence)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  set(fence ${CMAKE_SOURCE_DIR}/cmake/fence.cmake)
  set(stamp ${CMAKE_BINARY_DIR}/fence.stamp)
  add_custom_command(OUTPUT ${stamp} DEPENDS ${files} ${fence}
    COMMAND ${CMAKE_COMMAND} "-DFILES=${files}" -DSTAMP=${stamp} -P ${fence} VERBATIM)
  add_custom_target(tarvex_fence DEPENDS ${stamp})
  add_dependencies(tarvex_system tarvex_fence)
endfunction()
