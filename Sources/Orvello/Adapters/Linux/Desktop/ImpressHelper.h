#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"

#include <QString>

#include <memory>

namespace Orvello {

/// The program that asks LibreOffice Impress. It lies beside this program, and is not started
/// before the first question. Needs the application object.
std::unique_ptr<HelperProcess> makeImpressHelper();

namespace FormerImpressPermission {

/// The settings of the user's LibreOffice profile.
QString profile();

/// Whether a former version of this program has made LibreOffice listen for good, through this
/// file.
bool isIn(const QString& profile);

/// Begins to take that back, if it is so. What is returned must live on meanwhile; a permission
/// that cannot be taken back now, because LibreOffice is busy, is left to the next start.
std::unique_ptr<HelperProcess> takeBack();

} // namespace FormerImpressPermission

} // namespace Orvello
