#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"

#include <memory>

namespace Orvello {

/// The program that asks LibreOffice Impress. It lies beside this program, and is not started
/// before the first question. Needs the application object.
std::unique_ptr<HelperProcess> makeImpressHelper();

} // namespace Orvello
