# 32-bit x86, built and run on a 64-bit one. Numbers stay in SSE registers: those of the x87 hold more
# bits than float and double.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
set(CMAKE_C_FLAGS_INIT "-msse3 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse3 -mfpmath=sse")

# The processor runs it as it is, given the libraries of the machine.
set(CMAKE_CROSSCOMPILING_EMULATOR
  /usr/i686-linux-gnu/lib/ld-linux.so.2 --library-path /usr/i686-linux-gnu/lib)
