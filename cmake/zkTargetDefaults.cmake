# One place for what every target of ours gets: warnings, visibility, sanitizers.
option(ZK_WERROR "Treat compiler warnings as errors" OFF)
option(ZK_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(ZK_FUZZ "Build the libFuzzer targets in fuzz/ (clang): everything gets coverage, ASan and UBSan" OFF)
# The sanitizer's realloc copies the whole block on every growth, so growth to
# 10000 records of 227 KB is quadratic there: fuzzing uses a smaller cap.
set(ZK_FUZZ_MAX_JOB_RECORDS 16 CACHE STRING "Job record cap of the fuzz build")
# Scenes are read in chunks of 256 KB; fuzz inputs are a few kilobytes, so
# the fuzz build reads small chunks of an odd size to put lines across chunk ends.
set(ZK_FUZZ_LINE_CHUNK_BYTES 509 CACHE STRING "Bytes per read of the fuzz build's line source")
# The lists a scan fills are limited to thousands of items; fuzz inputs of a
# few kilobytes reach a limit of 16.
set(ZK_FUZZ_MAX_LIST_ITEMS 16 CACHE STRING "Limit of every scene list in the fuzz build")

function(zk_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic
        $<$<BOOL:${ZK_WERROR}>:-Werror>)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    if(ZK_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
    if(ZK_FUZZ)
        # -UQT_NO_DEBUG: Qt's own preconditions (Q_ASSERT in its inline code)
        # are checked too, as in a debug build, at optimised speed.
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link,address,undefined
            -fno-sanitize-recover=all -fno-omit-frame-pointer -UQT_NO_DEBUG)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
        target_compile_definitions(${target} PRIVATE ZK_MAX_JOB_RECORDS=${ZK_FUZZ_MAX_JOB_RECORDS}
            ZK_LINE_CHUNK_BYTES=${ZK_FUZZ_LINE_CHUNK_BYTES} ZK_MAX_LIST_ITEMS=${ZK_FUZZ_MAX_LIST_ITEMS})
    endif()
endfunction()
