# vireo_warnings(target): the project's warning set, shared by every target.
function(vireo_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  if(VIREO_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
