#include "BoxPage.h"

#include "support/Eventually.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

namespace tessaly {
namespace {

constexpr int frame = 2; // around each box, in a colour that tells which boxes are seen

// Its arguments: the contents, the columns, pitch and frame of the boxes, the colour of the frames. Returns
// for each content whether it was taken.
constexpr auto script = R"((function(contents, columns, pitch, frame, mark) {
    document.body.replaceChildren();
    return contents.map((content, i) => {
        const box = document.createElement('div');
        box.style = `position: absolute; width: ${pitch[0] - 2 * frame}px; height: ${pitch[1] - 2 * frame}px;
                     left: ${i % columns * pitch[0]}px; top: ${Math.floor(i / columns) * pitch[1]}px;
                     border: ${frame}px solid ${mark}; background: white`;
        const inner = document.createElement('div');
        inner.style = 'display: flex; width: 100%; height: 100%';
        const isMarkup = content.startsWith('<');
        if (isMarkup) {
            inner.innerHTML = content;
        } else {
            inner.style.background = content;
        }
        box.append(inner);
        document.body.append(box);
        return isMarkup || inner.style.backgroundImage.includes('gradient(');
    });
})(%1, %2, [%3, %4], %5, '%6'))";

// Whether a box is seen with that colour around it. The engine paints tile by tile, and a tile that has to do
// with a box, being larger, has to do with its frame too.
bool isFramed(const QImage& picture, const QRect& box, QRgb mark) {
    const QRect around = box.adjusted(-1, -1, 1, 1);
    bool isMarked = true;
    for (int x = around.left(); x <= around.right(); ++x) {
        isMarked =
            isMarked && picture.pixel(x, around.top()) == mark && picture.pixel(x, around.bottom()) == mark;
    }
    for (int y = around.top(); y <= around.bottom(); ++y) {
        isMarked =
            isMarked && picture.pixel(around.left(), y) == mark && picture.pixel(around.right(), y) == mark;
    }
    return isMarked;
}

} // namespace

QSize BoxPage::pitch() const {
    return box_ + QSize{2 * frame, 2 * frame};
}

QRect BoxPage::boxAt(int index) const {
    const QPoint corner{index % columns_ * pitch().width(), index / columns_ * pitch().height()};
    return {corner + QPoint{frame, frame}, box_};
}

bool BoxPage::open() {
    view_.resize(columns_ * pitch().width(), rows_ * pitch().height());
    view_.show();
    QSignalSpy loaded{&view_, &QWebEngineView::loadFinished};
    view_.setHtml(QStringLiteral("<html style='overflow: hidden'><body>"));
    return loaded.wait(20'000) && loaded.front().front().toBool();
}

std::vector<BoxPage::Picture> BoxPage::paint(std::span<const std::string> contents) {
    QJsonArray list;
    for (const std::string& content : contents) {
        list.append(QString::fromStdString(content));
    }
    ++paints_;
    const QRgb mark = qRgb(static_cast<int>(paints_ * 16 % 256), 0, 255);
    taken_.reset();
    view_.page()->runJavaScript(
        QString::fromLatin1(script).arg(QString::fromUtf8(QJsonDocument{list}.toJson()),
                                        QString::number(columns_), QString::number(pitch().width()),
                                        QString::number(pitch().height()), QString::number(frame),
                                        QColor{mark}.name()),
        [this](const QVariant& result) { taken_ = result.toList(); });
    QImage picture;
    const auto count = static_cast<int>(contents.size());
    const bool isSeen = eventually([&] {
        picture = view_.grab().toImage().convertToFormat(QImage::Format_RGB32);
        bool areFramed = taken_ && taken_->size() == count;
        for (int i = 0; i < count; ++i) {
            areFramed = areFramed && isFramed(picture, boxAt(i), mark);
        }
        return areFramed;
    });
    std::vector<Picture> boxes;
    for (int i = 0; isSeen && i < count; ++i) {
        boxes.push_back(taken_->at(i).toBool() ? Picture{picture.copy(boxAt(i))} : std::nullopt);
    }
    return boxes;
}

} // namespace tessaly
