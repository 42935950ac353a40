# bramlee_install_gzipped(FILE DESTINATION): installs the source file as FILE.gz, the same bytes
# whenever it is made.
function(bramlee_install_gzipped file destination)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${file}.gz)
  add_custom_command(OUTPUT ${made}
    COMMAND gzip -9nc ${CMAKE_CURRENT_SOURCE_DIR}/${file} > ${made}
    DEPENDS ${file})
  add_custom_target(gzip-${file} ALL DEPENDS ${made})
  install(FILES ${made} DESTINATION ${destination})
endfunction()
