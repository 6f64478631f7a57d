# What Debian's policy asks of a package beyond what the build installs; cpack runs it over the staged files of all
# components.
set(permissions FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

function(compress file)
  execute_process(COMMAND gzip -9 -n ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component tavimor tavimor-cli)
  set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
  if(NOT EXISTS ${share})
    continue()
  endif()
  compress(${share}/man/man1/${component}.1)
  file(COPY ${CMAKE_CURRENT_LIST_DIR}/changelog DESTINATION ${share}/doc/${component} ${permissions})
  compress(${share}/doc/${component}/changelog)
endforeach()

# The compiler's name and the like, which stripping leaves.
foreach(program tavimor-cli/usr/bin/tavimor-cli tavimor/usr/bin/tavimor tavimor/usr/libexec/tavimor/tavimor-workbook)
  execute_process(COMMAND strip --remove-section=.comment ${CPACK_TEMPORARY_DIRECTORY}/${program}
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(share ${CPACK_TEMPORARY_DIRECTORY}/tavimor-cli/usr/share)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/overrides/tavimor-cli DESTINATION ${share}/lintian/overrides ${permissions})
# Where Debian's zsh looks.
file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
