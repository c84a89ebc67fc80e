# Copies a text file with CR LF line ends, as every file of the program
# folder has: cmake -DSOURCE=from -DTARGET=to -P crlf.cmake
if(NOT DEFINED SOURCE OR NOT DEFINED TARGET)
  message(FATAL_ERROR "crlf.cmake needs -DSOURCE=... and -DTARGET=...")
endif()
file(READ "${SOURCE}" text)
string(REPLACE "\r\n" "\n" text "${text}")
string(REPLACE "\n" "\r\n" text "${text}")
file(WRITE "${TARGET}" "${text}")
