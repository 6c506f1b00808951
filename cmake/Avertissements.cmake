# Compiler settings that every target of this project shares; linked as an interface target so that
# nothing leaks into targets that did not ask for it.
add_library(varlotour_reglages INTERFACE)
target_compile_options(varlotour_reglages INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  $<$<BOOL:${VARLOTOUR_STRICT}>:-Werror>)
target_compile_definitions(varlotour_reglages INTERFACE
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(VARLOTOUR_SANITIZE)
  target_compile_options(varlotour_reglages INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(varlotour_reglages INTERFACE -fsanitize=address,undefined)
endif()
