# vireo_warnings(target): the project's warning set, shared by every target.
function(vireo_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  # g++ 12 at -O2 and above reports overlapping copies inside std::string's own
  # concatenation that cannot happen (a known false positive of that release),
  # so that check is left to clang and to debug builds there.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
  endif()
  if(VIREO_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
