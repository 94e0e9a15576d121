# Policy that every target of ours links privately; third-party code never does.
add_library(wordhawk_settings INTERFACE)
target_compile_features(wordhawk_settings INTERFACE cxx_std_20)
target_include_directories(wordhawk_settings INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(wordhawk_settings INTERFACE -fno-strict-aliasing)
if(WIN32)
  target_compile_definitions(wordhawk_settings INTERFACE
    UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00 WINVER=0x0A00)
endif()
if(WORDHAWK_SANITIZE)
  target_compile_options(wordhawk_settings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(wordhawk_settings INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(wordhawk_settings INTERFACE _GLIBCXX_ASSERTIONS)
endif()

add_library(wordhawk_warnings INTERFACE)
target_compile_options(wordhawk_warnings INTERFACE -Wall -Wextra -Wpedantic)
if(WORDHAWK_WERROR)
  target_compile_options(wordhawk_warnings INTERFACE -Werror)
endif()

# What makes a mistake of ours harder to use for a hostile file: in our own code, and not beside the
# sanitizers, which look closer. tests/scripts/check_binaries.py looks at the built programs.
add_library(wordhawk_hardening INTERFACE)
if(NOT WORDHAWK_SANITIZE)
  if(WIN32)
    target_link_options(wordhawk_hardening INTERFACE
      -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
  else()
    target_link_options(wordhawk_hardening INTERFACE -pie -Wl,-z,relro,-z,now,-z,noexecstack)
  endif()
endif()
if(WORDHAWK_GUARDS AND NOT WORDHAWK_SANITIZE)
  target_compile_options(wordhawk_hardening INTERFACE -fstack-protector-strong)
  target_link_options(wordhawk_hardening INTERFACE -fstack-protector-strong)
  if(CMAKE_BUILD_TYPE MATCHES "Rel")
    # It needs the optimiser; some compilers define it by themselves.
    target_compile_options(wordhawk_hardening INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  endif()
  if(NOT WIN32)
    target_compile_options(wordhawk_hardening INTERFACE
      -fPIE -fstack-clash-protection -fcf-protection)
  endif()
endif()

# A core library: `wordhawk_library(dict SOURCES a.cpp b.cpp USES lang)`.
function(wordhawk_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(wordhawk_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(wordhawk_${name}
    PRIVATE wordhawk_warnings wordhawk_hardening PUBLIC wordhawk_settings)
  foreach(used ${ARG_USES})
    target_link_libraries(wordhawk_${name} PUBLIC wordhawk_${used})
  endforeach()
endfunction()

# A GoogleTest program, one per folder: `wordhawk_test(dict SOURCES a_test.cpp USES dict)`.
function(wordhawk_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LABELS" ${ARGN})
  add_executable(${name}_tests ${ARG_SOURCES})
  target_link_libraries(${name}_tests PRIVATE
    wordhawk_settings wordhawk_warnings wordhawk_test_support GTest::gtest GTest::gmock)
  foreach(used ${ARG_USES})
    target_link_libraries(${name}_tests PRIVATE wordhawk_${used})
  endforeach()
  add_test(NAME ${name} COMMAND ${name}_tests)
  if(NOT ARG_LABELS)
    set(ARG_LABELS core)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS "${ARG_LABELS}")
endfunction()
