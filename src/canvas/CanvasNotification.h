#pragma once

/// The notifications that the canvas posts or observes; the preset gallery's are its own.
namespace tessaly::canvasNotification {

/// The gradient, its selection or its notation changed. Posted with the canvas as object.
inline constexpr const char* needToUpdateWebCode = "NeedToUpdateWebCode";

/// The colour of a colour well was set, by whomever. Posted with the well as object.
inline constexpr const char* colorChanged = "ColorChanged";

} // namespace tessaly::canvasNotification
