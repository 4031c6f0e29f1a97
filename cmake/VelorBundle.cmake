# velor_bundle(OUTPUT ENTRY) joins the modules that the script ENTRY imports, and ENTRY itself, into
# the one script OUTPUT, in the language of the engine that runs it: Qt 6.4 has Chromium 102.
find_program(VELOR_ESBUILD esbuild REQUIRED)

function(velor_bundle output entry)
  cmake_path(GET entry PARENT_PATH folder)
  file(GLOB_RECURSE modules CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/engine/bridge/*.js" "${folder}/*.js")
  add_custom_command(
    OUTPUT "${output}"
    COMMAND "${VELOR_ESBUILD}" "${entry}" --bundle --format=iife --target=chrome102
            --legal-comments=none --log-level=warning "--outfile=${output}"
    DEPENDS ${modules}
    VERBATIM)
endfunction()
