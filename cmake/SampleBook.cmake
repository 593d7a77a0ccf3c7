# Sample books for trying the reader and for the benchmarks, made at build
# time from Debian's bible-kjv package (the `bible` program) when it is
# installed and the reader itself is built:
#   bin/samples/genesis.txt, bin/samples/Genesis  (the book of Genesis)
#   bin/samples/kjv.txt, bin/samples/Bible        (the whole text, ~4.3 MB)
# Nothing of the text is kept in the repository.
#
# Run as a script (cmake -P) it writes one passage to a file:
#   -DBIBLE=program -DPASSAGE=gen1:1-gen50:26 -DOUT=file

if(CMAKE_SCRIPT_MODE_FILE)
  execute_process(COMMAND ${BIBLE} -l72 ${PASSAGE} OUTPUT_FILE ${OUT} RESULT_VARIABLE failed)
  if(failed)
    file(REMOVE ${OUT})
    message(FATAL_ERROR "bible ${PASSAGE} failed: ${failed}")
  endif()
  return()
endif()

find_program(VIREO_BIBLE_PROGRAM bible)
if(NOT VIREO_BIBLE_PROGRAM OR NOT VIREO_BUILD_UI)
  return()
endif()

set(VIREO_SAMPLES_DIR ${CMAKE_BINARY_DIR}/bin/samples)
set(sample_outputs "")

# vireo_sample_book(TEXT_NAME BOOK_NAME PASSAGE TITLE)
function(vireo_sample_book text_name book_name passage title)
  set(text ${VIREO_SAMPLES_DIR}/${text_name})
  set(book ${VIREO_SAMPLES_DIR}/${book_name})
  add_custom_command(
    OUTPUT ${text}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${VIREO_SAMPLES_DIR}
    COMMAND ${CMAKE_COMMAND} -DBIBLE=${VIREO_BIBLE_PROGRAM} -DPASSAGE=${passage} -DOUT=${text}
            -P ${CMAKE_CURRENT_FUNCTION_LIST_FILE}
    COMMENT "Writing the sample text ${text_name}"
    VERBATIM)
  add_custom_command(
    OUTPUT ${book}
    COMMAND $<TARGET_FILE:vireo-tool> make ${text} -o ${book} --stub $<TARGET_FILE:Vireo>
            --author "King James Version" --title ${title}
    DEPENDS ${text} vireo-tool Vireo vhtml
    COMMENT "Making the sample ebook ${book_name}"
    VERBATIM)
  set(sample_outputs ${sample_outputs} ${text} ${book} PARENT_SCOPE)
endfunction()

vireo_sample_book(genesis.txt Genesis gen1:1-gen50:26 Genesis)
vireo_sample_book(kjv.txt Bible gen1:1-rev22:21 "The Holy Bible")
add_custom_target(sample_books ALL DEPENDS ${sample_outputs})
