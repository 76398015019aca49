#include "app/ReadingBeside.h"

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
    Incoming incoming; ///< the reader's until its thread has ended
};

/// Ends with the window at the latest, and waits for its thread.
class ReadingDialog : public QProgressDialog {
  public:
    ReadingDialog(QWidget& window, const std::function<Incoming(const Progress& progress)>& reader)
        : QProgressDialog{tr("Reading…"), tr("Cancel"), 0, percent, &window},
          thread_{QThread::create([shared = shared_, reader] {
              shared->incoming = reader([&shared](double share) {
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
    ReadingDialog(const ReadingDialog&) = delete;
    ReadingDialog& operator=(const ReadingDialog&) = delete;
    ~ReadingDialog() override {
        shared_->cancelled = true;
        thread_->wait();
    }

    QThread& thread() { return *thread_; }
    const Shared& shared() const { return *shared_; }

  private:
    std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
    std::unique_ptr<QThread> thread_;
    QTimer timer_;
};

} // namespace

void readBeside(QWidget& window, const std::function<Incoming(const Progress& progress)>& reader,
                const std::function<void(const Incoming&)>& done) {
    auto* const reading = new ReadingDialog{window, reader};
    QObject::connect(&reading->thread(), &QThread::finished, reading, [reading, done] {
        reading->hide();
        reading->deleteLater();
        if (!reading->shared().cancelled) {
            done(reading->shared().incoming);
        }
    });
    reading->thread().start();
}

} // namespace tessaly
