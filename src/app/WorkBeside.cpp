#include "app/WorkBeside.h"

#include "foundation/DiagnosticLog.h"

#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <memory>

namespace tessaly {
namespace {

constexpr int percent = 100;
constexpr int shownAfter = 300; // milliseconds
constexpr int refreshed = 50;

/// What the two threads share.
struct Shared {
    std::atomic<int> progress = 0;
    std::atomic<bool> cancelled = false;
};

/// Ends with the window at the latest, and waits for its thread.
class WorkDialog : public QProgressDialog {
  public:
    WorkDialog(QWidget& window, const QString& title, const std::function<void(const Progress&)>& work)
        : QProgressDialog{title, tr("Cancel"), 0, percent, &window},
          thread_{QThread::create([shared = shared_, work] {
              work([&shared](double share) {
                  shared->progress = static_cast<int>(share * percent);
                  return !shared->cancelled;
              });
          })} {
        setWindowModality(Qt::WindowModal);
        setMinimumDuration(shownAfter);
        setAutoReset(false);
        setValue(0);
        connect(this, &QProgressDialog::canceled, this, [this] { shared_->cancelled = true; });
        connect(&timer_, &QTimer::timeout, this, [this] { setValue(shared_->progress); });
        timer_.start(refreshed);
    }
    WorkDialog(const WorkDialog&) = delete;
    WorkDialog& operator=(const WorkDialog&) = delete;
    ~WorkDialog() override {
        if (thread_->isRunning()) {
            DiagnosticLog::write("Not finished: " + labelText().toStdString());
        }
        shared_->cancelled = true;
        thread_->wait();
    }

    QThread& thread() { return *thread_; }
    bool isCancelled() const { return shared_->cancelled; }

  private:
    std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
    std::unique_ptr<QThread> thread_;
    QTimer timer_;
};

} // namespace

void workBeside(QWidget& window, const QString& title, const std::function<void(const Progress&)>& work,
                const std::function<void()>& done) {
    auto* const dialog = new WorkDialog{window, title, work};
    QObject::connect(&dialog->thread(), &QThread::finished, dialog, [dialog, done] {
        dialog->hide();
        dialog->deleteLater();
        if (!dialog->isCancelled()) {
            done();
        }
    });
    dialog->thread().start();
}

} // namespace tessaly
