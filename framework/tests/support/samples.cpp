#include "samples.hpp"

#include <memory>

namespace sample {

std::shared_ptr<Service> makeService()
{
    [[maybe_unused]] static const bool registered = zu::registerObject<Service>();
    return std::make_shared<Service>();
}

} // namespace sample
