#pragma once

/// The dynamic variant of the middleware's older remote-call layer.
namespace VX {

class VXValue;

} // namespace VX
