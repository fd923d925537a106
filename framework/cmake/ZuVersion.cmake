# The one version of the libraries, the program and their packages.
set(ZU_RELEASE 0.1.0)
# What the names of the libraries end with: raised by a release that programs compiled before do not run with.
set(ZU_SOVERSION 0)
