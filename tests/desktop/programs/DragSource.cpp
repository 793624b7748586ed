// A small window from which the files named on the command line can be dragged, as from a file manager.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

namespace {

// Stays until it is killed: whoever takes the files asks it for them after the drop.
class Source : public QWidget {
  public:
    explicit Source(const QStringList& files) {
        for (const QString& file : files)
            urls_ << QUrl::fromLocalFile(file);
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if ((event->buttons() & Qt::LeftButton) == 0)
            return;
        // The drag owns its data and goes with this window.
        auto* drag = new QDrag(this);
        auto* dragged = new QMimeData;
        dragged->setUrls(urls_);
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }

  private:
    QList<QUrl> urls_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Source source(QCoreApplication::arguments().mid(1));
    source.setWindowTitle(QStringLiteral("Files to drag"));
    // Beside the window of the program under test.
    source.setGeometry(4, 30, 110, 110);
    source.show();
    return QApplication::exec();
}
