#include "BoxPage.h"

#include "support/Eventually.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

namespace tessaly {
namespace {

constexpr int width = BoxPage::side * static_cast<int>(BoxPage::columns);
constexpr int height = BoxPage::side * static_cast<int>(BoxPage::mostBoxes / BoxPage::columns);
constexpr int markHeight = 10; // a strip below the boxes, whose colour tells which boxes are seen

// Its arguments: the values, the columns, the side of a box, the colour of the strip. Returns for each value
// whether it was taken.
constexpr auto script = R"((function(values, columns, side, mark) {
    document.body.replaceChildren();
    document.documentElement.style.background = mark;
    return values.map((value, i) => {
        const box = document.createElement('div');
        box.style = `position: absolute; width: ${side}px; height: ${side}px;
                     left: ${i % columns * side}px; top: ${Math.floor(i / columns) * side}px`;
        box.style.background = 'white';
        document.body.append(box);
        const gradient = box.cloneNode();
        gradient.style.left = gradient.style.top = 0;
        gradient.style.background = value;
        box.append(gradient);
        return gradient.style.backgroundImage.includes('gradient(');
    });
})(%1, %2, %3, '%4'))";

} // namespace

bool BoxPage::open() {
    view_.resize(width, height + markHeight);
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
    view_.page()->runJavaScript(
        QString::fromLatin1(script).arg(QString::fromUtf8(QJsonDocument{list}.toJson()),
                                        QString::number(columns), QString::number(side), QColor{mark}.name()),
        [this](const QVariant& result) { taken_ = result.toList(); });
    QImage picture;
    const bool isSeen = eventually([&] {
        picture = view_.grab().toImage().convertToFormat(QImage::Format_RGB32);
        return taken_ && picture.pixel(width / 2, height + markHeight / 2) == mark;
    });
    std::vector<Picture> boxes;
    for (int i = 0; isSeen && i < taken_->size(); ++i) {
        const int column = i % static_cast<int>(columns);
        const int row = i / static_cast<int>(columns);
        boxes.push_back(taken_->at(i).toBool() ? Picture{picture.copy(column * side, row * side, side, side)}
                                               : std::nullopt);
    }
    return boxes;
}

} // namespace tessaly
