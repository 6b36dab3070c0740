// The document that tells the player how to play.
#pragma once

#include <string_view>

#include "desktop/document.h"

namespace thistle {

/// The instructions, ending with the two addresses given.
desktop::Document Instructions(std::string_view support, std::string_view webSite);

}  // namespace thistle
