// A window full of files to drag into another one: drag-source X Y FILE... takes a corner of the
// screen, and what is dragged out of it is the files. Prints "ready" once it can be seen, and how
// each drag ended.

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

class DragSource final : public QRasterWindow {
public:
    explicit DragSource(const QStringList& files)
    {
        for (const QString& file : files)
            m_files.append(QUrl::fromLocalFile(file));
    }

protected:
    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        if (isExposed())
            report("ready");
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!(event->buttons() & Qt::LeftButton))
            return;
        auto* const data = new QMimeData;
        data->setUrls(m_files);
        // Qt's own in the end: the files are asked for after they have been let go.
        auto* const drag = new QDrag(this);
        drag->setMimeData(data);
        report(drag->exec(Qt::CopyAction) == Qt::CopyAction ? "copied" : "refused");
    }

private:
    static void report(const char* word)
    {
        std::puts(word);
        std::fflush(stdout);
    }

    QList<QUrl> m_files;
};

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    constexpr int firstFile = 3;
    constexpr int side = 80;
    DragSource source(arguments.mid(firstFile));
    source.setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    source.setTitle(QStringLiteral("drag-source"));
    source.setGeometry(arguments.value(1).toInt(), arguments.value(2).toInt(), side, side);
    source.show();
    return QGuiApplication::exec();
}
