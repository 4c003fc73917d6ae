# Flags that every program of this project is built with, as one interface target.
add_library(velmora_flags INTERFACE)

target_compile_definitions(velmora_flags INTERFACE
  UNICODE _UNICODE STRICT NOMINMAX WIN32_LEAN_AND_MEAN
  WINVER=0x0A00 _WIN32_WINNT=0x0A00
  $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

# The system's proxies use interface identifiers at unaligned addresses, so alignment is not checked.
# GCC 12 reports overlapping copies in plain string concatenations by mistake (-Wrestrict).
target_compile_options(velmora_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wold-style-cast -Woverloaded-virtual -Wno-restrict
  -finput-charset=UTF-8 -ffunction-sections -fdata-sections -fstack-protector-strong
  $<$<CONFIG:Debug>:-fsanitize=undefined> $<$<CONFIG:Debug>:-fsanitize-undefined-trap-on-error>
  $<$<CONFIG:Debug>:-fno-sanitize=alignment>)

# The program is one file: the runtime is linked in. Address randomisation and no-execute are on.
# Window programs start at wWinMain, console programs (the tests) at main.
target_link_options(velmora_flags INTERFACE
  -static -fstack-protector-strong
  $<$<BOOL:$<TARGET_PROPERTY:WIN32_EXECUTABLE>>:-municode>
  -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat
  $<$<CONFIG:Release>:-s>)
