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
  # Undefined behaviour stops the test that met it instead of scrolling past in its output.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined)
endif()
if(TARVEL_FUZZ)
  # Every library gets the fuzzer's coverage counters; only the harnesses link its main.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined)
endif()
if(TARVEL_TSAN)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()

# tarvel_library(NAME SOURCES... [LIBS ...]): a static library for one folder of src/.
# Its headers are reached as "<folder>/name.h" through an include root that holds that folder
# alone, and a library sees only its own root and those of the libraries it links: layers point
# one way, and an include of a layer above (toolkit including collect, collect including prefs)
# fails to compile.
function(tarvel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set(root ${PROJECT_BINARY_DIR}/include_roots/${folder})
  file(MAKE_DIRECTORY ${root})
  if(NOT EXISTS ${root}/${folder})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
  endif()
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
  tarvel_target_defaults(${name})
endfunction()

# tarvel_test(NAME SOURCES... LIBS ... [LOCK resource]): one GoogleTest binary registered with
# CTest; tests that share a LOCK never run at the same time (the machine's mount table, say).
function(tarvel_test name)
  cmake_parse_arguments(ARG "" "LOCK" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} tarvel_test_support GTest::gtest GTest::gmock)
  tarvel_target_defaults(${name})
  # Each property takes one value: a list would reach the tests split into two arguments.
  set(properties ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  if(TARVEL_TSAN)
    list(APPEND properties ENVIRONMENT_MODIFICATION
         "TSAN_OPTIONS=set:suppressions=${PROJECT_SOURCE_DIR}/tools/tsan.supp")
  endif()
  if(TARVEL_ASAN)
    list(APPEND properties ENVIRONMENT_MODIFICATION
         "LSAN_OPTIONS=set:suppressions=${PROJECT_SOURCE_DIR}/tools/lsan.supp")
  endif()
  if(ARG_LOCK)
    list(APPEND properties RESOURCE_LOCK ${ARG_LOCK})
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
endfunction()
