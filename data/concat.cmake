# Writes the files of PARTS one after another into OUTPUT; a part that does
# not exist is named in its place, so the result says what is missing.
set(text "")
foreach(part ${PARTS})
  if(EXISTS ${part})
    file(READ ${part} content)
    string(APPEND text "${content}")
  else()
    message(WARNING "${part} is missing; the copyright file names it instead")
    string(APPEND text "(See ${part}.)\n")
  endif()
endforeach()
file(WRITE ${OUTPUT} "${text}")
