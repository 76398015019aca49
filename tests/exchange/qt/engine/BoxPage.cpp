#include "BoxPage.h"

#include "support/Eventually.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

namespace tessaly {
namespace {

constexpr int frame = 2; // around each box, in a colour that tells which boxes are seen
constexpr int pitch = BoxPage::side + 2 * frame;
constexpr int columns = 12;
constexpr int rows = static_cast<int>(BoxPage::mostBoxes) / columns;

// Its arguments: the values, the columns, pitch and frame of the boxes, the colour of the frames. Returns for
// each value whether it was taken.
constexpr auto script = R"((function(values, columns, pitch, frame, mark) {
    document.body.replaceChildren();
    return values.map((value, i) => {
        const box = document.createElement('div');
        box.style = `position: absolute; width: ${pitch - 2 * frame}px; height: ${pitch - 2 * frame}px;
                     left: ${i % columns * pitch}px; top: ${Math.floor(i / columns) * pitch}px;
                     border: ${frame}px solid ${mark}; background: white`;
        const gradient = document.createElement('div');
        gradient.style = 'width: 100%; height: 100%';
        gradient.style.background = value;
        box.append(gradient);
        document.body.append(box);
        return gradient.style.backgroundImage.includes('gradient(');
    });
})(%1, %2, %3, %4, '%5'))";

QRect boxAt(int index) {
    return {index % columns * pitch + frame, index / columns * pitch + frame, BoxPage::side, BoxPage::side};
}

// Whether a box is seen with that colour around it. The engine paints tile by tile, and a tile that has to do
// with a box, being larger, has to do with its frame too.
bool isFramed(const QImage& picture, const QRect& box, QRgb mark) {
    const QRect around = box.adjusted(-1, -1, 1, 1);
    bool isMarked = true;
    for (int i = 0; i < around.width(); ++i) {
        const QPoint along{i, 0};
        const QPoint down{0, i};
        for (const QPoint place : {around.topLeft() + along, around.bottomLeft() + along,
                                   around.topLeft() + down, around.topRight() + down}) {
            isMarked = isMarked && picture.pixel(place) == mark;
        }
    }
    return isMarked;
}

} // namespace

bool BoxPage::open() {
    view_.resize(columns * pitch, rows * pitch);
    view_.show();
    QSignalSpy loaded{&view_, &QWebEngineView::loadFinished};
    view_.setHtml(QStringLiteral("<html style='overflow: hidden'><body>"));
    return loaded.wait(20'000) && loaded.front().front().toBool();
}

std::vector<BoxPage::Picture> BoxPage::paint(std::span<const std::string> values) {
    QJsonArray list;
    for (const std::string& value : values) {
        list.append(QString::fromStdString(value));
    }
    ++paints_;
    const QRgb mark = qRgb(static_cast<int>(paints_ * 16 % 256), 0, 255);
    taken_.reset();
    view_.page()->runJavaScript(QString::fromLatin1(script).arg(
                                    QString::fromUtf8(QJsonDocument{list}.toJson()), QString::number(columns),
                                    QString::number(pitch), QString::number(frame), QColor{mark}.name()),
                                [this](const QVariant& result) { taken_ = result.toList(); });
    QImage picture;
    const auto count = static_cast<int>(values.size());
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
