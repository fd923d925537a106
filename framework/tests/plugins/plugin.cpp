#include "api_implementation.hpp"

extern "C" __attribute__((visibility("default"))) const plug::Api* plugApi() { return &plug::k_api; }
