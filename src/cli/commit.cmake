# Writes the commit of the source tree to a C++ source: cmake -D TREE=... -D RESULT=... -P commit.cmake

# "git archive" replaces this.
set(commit "$Format:%h$")
if(commit MATCHES "Format")
    set(commit "")
    # A tree that was unpacked inside of another repository has no commit.
    if(EXISTS ${TREE}/.git)
        execute_process(COMMAND git -C ${TREE} rev-parse --short HEAD
            OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
endif()
file(WRITE ${RESULT} "namespace velmora {

extern const char* const kCommit;
const char* const kCommit = \"${commit}\";

} // namespace velmora
")
