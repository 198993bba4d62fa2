#include "Orvello/Platform/Linux/QtOpenPanel.h"

#include <QApplication>
#include <QFileDialog>

namespace Orvello {

using namespace Qt::StringLiterals;

std::optional<QString> QtOpenPanel::chooseFile(const QString& message, const FileKind& kind)
{
    QFileDialog panel(QApplication::activeWindow(), message);
    panel.setFileMode(QFileDialog::ExistingFile);
    // Whoever named the file may have used capitals.
    panel.setNameFilter(
        u"*.%1 (*.%1 *.%2)"_s.arg(kind.extension.toLower(), kind.extension.toUpper()));
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return std::nullopt;
    return panel.selectedFiles().constFirst();
}

} // namespace Orvello
