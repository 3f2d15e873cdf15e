# One shared library per layer, built from every source file below its folders, so that a new
# file joins its layer without an edit here.
function(orva_add_layer_library target)
  cmake_parse_arguments(ARG "" "" "DIRS;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
  set(sources "")
  foreach(dir IN LISTS ARG_DIRS)
    file(GLOB_RECURSE dir_sources CONFIGURE_DEPENDS ${dir}/*.cpp)
    list(APPEND sources ${dir_sources})
  endforeach()
  if(NOT sources)
    # A layer whose folders hold no source yet still yields its library.
    set(sources ${CMAKE_CURRENT_BINARY_DIR}/${target}_empty.cpp)
    file(WRITE ${sources} "")
  endif()
  add_library(${target} SHARED ${sources})
  add_library(ORVAUtil::${target} ALIAS ${target})
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ORVAUtil>)
  target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE ${ARG_PRIVATE_LIBS})
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()
