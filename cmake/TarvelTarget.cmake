# Shared compile settings for every Tarvel target: warnings, sanitizers.
function(tarvel_target_defaults target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wold-style-cast -Wcast-align -Woverloaded-virtual)
  if(TARVEL_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
endfunction()

if(TARVEL_ASAN)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(TARVEL_TSAN)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()

# tarvel_library(NAME SOURCES... [LIBS ...]): a static library for one folder of src/.
function(tarvel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
  tarvel_target_defaults(${name})
endfunction()

# tarvel_test(NAME SOURCES... LIBS ...): one GoogleTest binary registered with CTest.
function(tarvel_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} tarvel_test_support GTest::gtest GTest::gmock)
  tarvel_target_defaults(${name})
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
                       PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
