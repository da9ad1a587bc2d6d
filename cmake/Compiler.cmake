# One interface target carries the warnings and, where asked for, the sanitizers.
add_library(zeugnis_compiler INTERFACE)

set(ZEUGNIS_WARNINGS
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 warns of overlapping copies inside std::basic_string that cannot happen.
    list(APPEND ZEUGNIS_WARNINGS -Wduplicated-cond -Wlogical-op -Wno-restrict)
endif()
if(ZEUGNIS_SANITIZE)
    # The instrumented code makes GCC see null pointers that cannot be.
    list(APPEND ZEUGNIS_WARNINGS -Wno-null-dereference -Wno-maybe-uninitialized)
    target_compile_options(zeugnis_compiler INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zeugnis_compiler INTERFACE -fsanitize=address,undefined)
endif()
if(ZEUGNIS_FUZZ)
    target_compile_options(zeugnis_compiler INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
    target_link_options(zeugnis_compiler INTERFACE -fsanitize=address,undefined)
endif()
target_compile_options(zeugnis_compiler INTERFACE ${ZEUGNIS_WARNINGS})

# What is delivered defends itself: checked containers, guarded stacks and calls, tables that are
# read-only once the program runs.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()
target_compile_definitions(zeugnis_compiler INTERFACE
    $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS> $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
target_compile_options(zeugnis_compiler INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong>)
if(WIN32)
    # There the guards come from a library that only the linker's own option brings in.
    target_link_options(zeugnis_compiler INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong>)
endif()
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        target_compile_options(zeugnis_compiler INTERFACE $<$<CONFIG:Release>:-fcf-protection=full>)
    endif()
    target_link_options(zeugnis_compiler INTERFACE
        $<$<CONFIG:Release>:LINKER:-z,relro> $<$<CONFIG:Release>:LINKER:-z,now>)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
