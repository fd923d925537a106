# A toolchain file: Clang with its AddressSanitizer and UndefinedBehaviorSanitizer, and the checks of the standard
# library.
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_FLAGS_INIT "-fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all \
-fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS")
