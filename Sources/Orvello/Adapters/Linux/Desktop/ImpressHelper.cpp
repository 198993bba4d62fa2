#include "Orvello/Adapters/Linux/Desktop/ImpressHelper.h"

#include "Orvello/Adapters/Portable/QtHelperProcess.h"

#include <QCoreApplication>

namespace Orvello {

using namespace Qt::StringLiterals;

std::unique_ptr<HelperProcess> makeImpressHelper()
{
    // The distribution's own Python, because its package python3-uno serves no other one.
    return std::make_unique<QtHelperProcess>(u"/usr/bin/python3"_s,
        QStringList {
            QCoreApplication::applicationDirPath() + u"/impress-helper.py"_s, u"serve"_s });
}

} // namespace Orvello
