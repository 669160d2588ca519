#include "SvgIconRenderer.h"

#include <QFile>
#include <QHash>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <stdexcept>

namespace {

struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] void fail(const QString& reason) { throw Failure(reason.toStdString()); }

double number(const QXmlStreamAttributes& attributes, const char* name, double fallback = 0) {
    const QStringView text = attributes.value(QLatin1String(name));
    if (text.isEmpty()) return fallback;
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok) fail(QStringLiteral("not a number in %1: %2").arg(QLatin1String(name), text));
    return value;
}

QColor colour(QStringView text) {
    const QColor parsed = QColor::fromString(text);
    if (!parsed.isValid()) fail(QStringLiteral("unknown colour %1").arg(text));
    return parsed;
}

// The attributes each element may carry: anything else would be ignored, and the picture
// would come out different from the drawing. Nothing for an element the renderer does not draw.
const QStringList* knownAttributes(QStringView element) {
    static const QHash<QString, QStringList> known = {
        {QStringLiteral("svg"), {"xmlns", "width", "height", "viewBox"}},
        {QStringLiteral("defs"), {}},
        {QStringLiteral("linearGradient"), {"id", "x1", "y1", "x2", "y2", "gradientUnits"}},
        {QStringLiteral("stop"), {"offset", "stop-color"}},
        {QStringLiteral("rect"), {"x", "y", "width", "height", "rx", "fill", "stroke", "stroke-width", "stroke-linejoin"}},
        {QStringLiteral("circle"), {"cx", "cy", "r", "fill", "stroke", "stroke-width"}},
        {QStringLiteral("path"), {"d", "fill", "stroke", "stroke-width", "stroke-linejoin"}},
    };
    const auto names = known.constFind(element.toString());
    return names != known.constEnd() ? &*names : nullptr;
}

class PathParser {
public:
    explicit PathParser(QStringView data) {
        static const QRegularExpression token(QStringLiteral("[MmLlHhVvCcQqZz]|[-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?"));
        for (auto match = token.globalMatch(data.toString()); match.hasNext();) _tokens << match.next().captured();
    }

    QPainterPath parse() {
        QChar command;
        while (_next < _tokens.size()) {
            if (_tokens[_next].front().isLetter()) command = _tokens[_next++].front();
            if (command.isNull()) fail(QStringLiteral("path data must begin with a command"));
            step(command);
            if (command == QLatin1Char('M')) command = QLatin1Char('L');
            if (command == QLatin1Char('m')) command = QLatin1Char('l');
        }
        return _path;
    }

private:
    double take() {
        if (_next >= _tokens.size() || _tokens[_next].front().isLetter()) fail(QStringLiteral("path data ends early"));
        return _tokens[_next++].toDouble();
    }
    QPointF point(bool relative) {
        const double x = take();
        const double y = take();
        return relative ? _path.currentPosition() + QPointF(x, y) : QPointF(x, y);
    }

    void step(QChar command) {
        const bool relative = command.isLower();
        switch (command.toUpper().unicode()) {
            case 'M': _path.moveTo(point(relative)); break;
            case 'L': _path.lineTo(point(relative)); break;
            case 'H': _path.lineTo((relative ? _path.currentPosition().x() : 0) + take(), _path.currentPosition().y()); break;
            case 'V': _path.lineTo(_path.currentPosition().x(), (relative ? _path.currentPosition().y() : 0) + take()); break;
            case 'C': {
                const QPointF first = point(relative), second = point(relative), end = point(relative);
                _path.cubicTo(first, second, end);
                break;
            }
            case 'Q': {
                const QPointF control = point(relative), end = point(relative);
                _path.quadTo(control, end);
                break;
            }
            case 'Z': _path.closeSubpath(); break;
            default: fail(QStringLiteral("unknown path command %1").arg(command));
        }
    }

    QStringList _tokens;
    qsizetype _next = 0;
    QPainterPath _path;
};

class Renderer {
public:
    Renderer(QXmlStreamReader& reader, QImage& image) : _reader(reader), _image(image) {}

    void run() {
        while (!_reader.atEnd()) {
            if (_reader.readNext() == QXmlStreamReader::StartElement) element();
        }
        if (_reader.hasError()) fail(_reader.errorString());
        if (!_painter.isActive()) fail(QStringLiteral("no svg element"));
    }

private:
    void element() {
        const QStringView name = _reader.name();
        const QXmlStreamAttributes attributes = _reader.attributes();
        const QStringList* known = knownAttributes(name);
        if (!known) fail(QStringLiteral("unknown element %1").arg(name));
        for (const QXmlStreamAttribute& attribute : attributes)
            if (!known->contains(attribute.qualifiedName()))
                fail(QStringLiteral("%1 does not take %2").arg(name, attribute.qualifiedName()));
        if (name == QLatin1String("svg")) return begin(attributes);
        if (name == QLatin1String("defs")) return;
        if (name == QLatin1String("linearGradient")) return gradient(attributes);
        if (name == QLatin1String("stop")) return stop(attributes);
        if (!_painter.isActive()) fail(QStringLiteral("shapes must sit inside the svg element"));
        if (name == QLatin1String("rect"))
            return draw(rectangle(attributes), attributes);
        if (name == QLatin1String("circle")) {
            QPainterPath circle;
            circle.addEllipse(QPointF(number(attributes, "cx"), number(attributes, "cy")), number(attributes, "r"),
                              number(attributes, "r"));
            return draw(circle, attributes);
        }
        draw(PathParser(attributes.value(QLatin1String("d"))).parse(), attributes);
    }

    void begin(const QXmlStreamAttributes& attributes) {
        const QStringList box = attributes.value(QLatin1String("viewBox")).toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (box.size() != 4) fail(QStringLiteral("the svg element needs a viewBox of four numbers"));
        _image.fill(Qt::transparent);
        _painter.begin(&_image);
        _painter.setRenderHint(QPainter::Antialiasing);
        _painter.scale(_image.width() / box[2].toDouble(), _image.height() / box[3].toDouble());
        _painter.translate(-box[0].toDouble(), -box[1].toDouble());
    }

    void gradient(const QXmlStreamAttributes& attributes) {
        if (attributes.value(QLatin1String("gradientUnits")) != QLatin1String("userSpaceOnUse"))
            fail(QStringLiteral("gradients must use userSpaceOnUse"));
        _currentGradient = attributes.value(QLatin1String("id")).toString();
        _gradients.insert(_currentGradient, QLinearGradient(number(attributes, "x1"), number(attributes, "y1"),
                                                            number(attributes, "x2"), number(attributes, "y2")));
    }

    void stop(const QXmlStreamAttributes& attributes) {
        if (!_gradients.contains(_currentGradient)) fail(QStringLiteral("a stop outside a gradient"));
        _gradients[_currentGradient].setColorAt(number(attributes, "offset"),
                                                colour(attributes.value(QLatin1String("stop-color"))));
    }

    static QPainterPath rectangle(const QXmlStreamAttributes& attributes) {
        QPainterPath path;
        const QRectF box(number(attributes, "x"), number(attributes, "y"), number(attributes, "width"),
                         number(attributes, "height"));
        const double radius = number(attributes, "rx");
        path.addRoundedRect(box, radius, radius);
        return path;
    }

    QBrush paint(QStringView text) const {
        if (text.isEmpty() || text == QLatin1String("none")) return Qt::NoBrush;
        if (!text.startsWith(QLatin1String("url(#"))) return colour(text);
        const QString id = text.mid(5, text.size() - 6).toString();
        if (!_gradients.contains(id)) fail(QStringLiteral("unknown gradient %1").arg(id));
        return _gradients.value(id);
    }

    void draw(const QPainterPath& path, const QXmlStreamAttributes& attributes) {
        const QStringView fill = attributes.value(QLatin1String("fill"));
        _painter.fillPath(path, fill.isEmpty() ? QBrush(Qt::black) : paint(fill));
        const QBrush stroke = paint(attributes.value(QLatin1String("stroke")));
        if (stroke.style() == Qt::NoBrush) return;
        QPen pen(stroke, number(attributes, "stroke-width", 1));
        pen.setJoinStyle(attributes.value(QLatin1String("stroke-linejoin")) == QLatin1String("round") ? Qt::RoundJoin
                                                                                                      : Qt::MiterJoin);
        _painter.strokePath(path, pen);
    }

    QXmlStreamReader& _reader;
    QImage& _image;
    QPainter _painter;
    QHash<QString, QLinearGradient> _gradients;
    QString _currentGradient;
};

}  // namespace

QImage renderSvgIcon(const QString& path, int size, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return {};
    }
    QXmlStreamReader reader(&file);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    try {
        Renderer(reader, image).run();
    } catch (const Failure& failure) {
        if (error) *error = QString::fromStdString(failure.what());
        return {};
    }
    return image;
}
