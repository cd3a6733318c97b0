#include "desktop/keyboard/KeyboardPicture.h"

#include "base/Log.h"
#include "desktop/keyboard/keyMark.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/purityMark.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/LiveKeys.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// The range of the letters' height in pixels. No names are shown if the white keys are narrower
/// than twice the smallest letters.
constexpr int kMinLetter = 7;
constexpr int kMaxLetter = 13;

constexpr QRgb kClassicName = 0xff404040;
constexpr QRgb kBed = 0xff1b1b1f; ///< Shows between the keys.
constexpr QRgb kBlackKeyFace = 0xff2b2b31;
constexpr QRgb kWhiteKeyFace = 0xfffbfaf7;
constexpr QRgb kWhiteKeyFaceInDark = 0xffdedcd7;

/// The radius of the lower corners of a key, as a fraction of its width, and its maximum in pixels.
constexpr double kCorner = 0.15;
constexpr double kMaxCorner = 4.0;

/// On keys that are lower than this many pixels, a mark takes the place of the name.
constexpr int kLowKeys = 60;

/// Returns the rectangle of a key from the top of the view, with its sides on whole pixels of the
/// screen, so that all gaps are equally wide.
QRectF sharpRect(const KeyQuad& quad, double origin, double height, double ratio)
{
    const double gap = quad.isBlack ? 0.0 : 1.0;
    const double left = std::round((origin + quad.left - gap) * ratio) / ratio;
    const double right = std::round((origin + quad.right + gap) * ratio) / ratio;
    return {left, 0.0, right - left - gap, height - quad.bottom};
}

QPainterPath keyPath(const QRectF& rect)
{
    const double radius = std::min(rect.width() * kCorner, kMaxCorner);
    QPainterPath path;
    path.addRoundedRect(rect.adjusted(0, -2 * radius, 0, 0), radius, radius);
    return path;
}

QRectF classicRect(const KeyQuad& quad, double height)
{
    return {quad.left, height - quad.top, quad.right - quad.left, quad.top - quad.bottom};
}

/// Returns where the mark of a purity lies on the face of a key: near its lower end.
QRectF markPlace(const QRectF& face)
{
    constexpr double kWidth = 0.6, kFromBottom = 0.3;
    const double height = face.height() * kFromBottom;
    return {face.center().x() - face.width() * kWidth / 2, face.bottom() - height,
            face.width() * kWidth, height};
}

} // namespace

std::array<int, 128> keyStates(const KeyboardDocument* document, const LiveKeys& keys)
{
    std::array<int, 128> states{};
    bool isAnyWanted = false;
    for (unsigned key = 0; key < states.size(); ++key) {
        const int state = document != nullptr ? document->stateOfNote(key) : 0;
        states[key] = state == 0 && keys.state(key) != 0 ? kHeld : state;
        isAnyWanted = isAnyWanted || (state & kWanted) != 0;
    }
    if (!isAnyWanted && preferredScheme() == Scheme::Calm)
        std::ranges::replace(states, kPressed, kHeld);
    return states;
}

KeyboardPicture::KeyboardPicture(QSize viewSize, const QPalette& palette)
    : scheme(preferredScheme()), geometry{static_cast<double>(getPrefInt("KeyWidth")),
                                          getPrefInt("KeyRangeLo"), getPrefInt("KeyRangeHi")},
      size(viewSize), played(schemeColor("KeyColor", palette)),
      correct(schemeColor("KeyColorCorrect", palette)),
      sustained(schemeColor("KeyColorSustain", palette)),
      wrong(schemeColor("KeyColorWrong", palette)), hasNames(getPrefBool("KeyNames")),
      isDark(velmora::isDark(palette))
{
    if (scheme == Scheme::Classic) {
        origin = std::max(0, (size.width() - static_cast<int>(geometry.extent())) / 2);
        return;
    }
    geometry = KeyboardGeometry::filling(size.width(), geometry.lo, geometry.hi);
    const double keys = geometry.right() - geometry.left();
    origin = std::max(0.0, (size.width() - keys) / 2) - geometry.left();
}

const Color* KeyboardPicture::color(int state) const
{
    switch (state) {
    case kPressed:
        return &wrong;
    case kWanted:
    case kWanted | kHeld: // docs/decisions.md, 111
        return &played;
    case kWanted | kPressed:
        return &correct;
    case kHeld:
        return &sustained;
    default:
        return nullptr;
    }
}

std::optional<QColor> KeyboardPicture::fill(const KeyQuad& quad) const
{
    if (purity(quad) != Purity::None)
        return purityColor(purity(quad));
    const Color* ofState = color(state(quad));
    return ofState == nullptr ? std::nullopt : std::optional(ofState->toQColor());
}

Purity KeyboardPicture::purity(const KeyQuad& quad) const
{
    const bool isJudged = state(quad) != 0 && state(quad) != kHeld && state(quad) != kWanted;
    return isJudged ? Purity::None : purities[static_cast<std::size_t>(quad.key)];
}

int KeyboardPicture::keyAt(QPointF point) const
{
    const double x = point.x() - origin;
    const double y = size.height() - point.y();
    if (scheme == Scheme::Calm)
        return geometry.drawnKeyAt(x, std::max(y, 0.0), size.height());
    if (x < 0 || x >= geometry.extent())
        return -1;
    const int key = geometry.keyAt(x, y, size.height());
    return key >= 0 && key < 128 ? key : -1;
}

void KeyboardPicture::paint(QPainter& painter) const
{
    if (scheme == Scheme::Classic)
        paintClassic(painter);
    else
        paintCalm(painter);
    if (nameHeight() > 0)
        paintNames(painter);
}

void KeyboardPicture::paintClassic(QPainter& painter) const
{
    painter.fillRect(QRect({}, size), Qt::black);
    painter.translate(origin, 0);
    const double height = size.height();
    for (const bool isBlack : {false, true}) {
        for (const KeyQuad& quad : geometry.keys(static_cast<float>(height))) {
            if (quad.isBlack != isBlack)
                continue;
            const std::optional<QColor> fill = this->fill(quad);
            if (!isBlack) {
                painter.fillRect(classicRect(quad, height), fill.value_or(Qt::white));
            } else {
                painter.fillRect(classicRect(quad, height), Qt::black);
                if (state(quad) == 0 && !fill)
                    continue;
                if (!fill) // docs/decisions.md, 110
                    logger("desktop").debug("wrong {}", state(quad));
                painter.fillRect(classicRect(quad.inner(), height), fill.value_or(Qt::blue));
            }
            if (purity(quad) != Purity::None)
                paintPurityMark(painter, purity(quad), inkOn(*fill),
                                markPlace(classicRect(isBlack ? quad.inner() : quad, height)));
        }
    }
    painter.translate(-origin, 0);
}

void KeyboardPicture::paintCalm(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect({}, size), QColor(kBed));
    const double ratio = painter.device()->devicePixelRatioF();
    const bool isLow = size.height() < kLowKeys;
    const QColor white(isDark ? kWhiteKeyFaceInDark : kWhiteKeyFace);
    for (const bool isBlack : {false, true}) {
        for (const KeyQuad& quad : geometry.keys(static_cast<float>(size.height()))) {
            if (quad.isBlack != isBlack)
                continue;
            const std::optional<QColor> fill = this->fill(quad);
            const QRectF rect = sharpRect(quad, origin, size.height(), ratio);
            if (rect.right() < 0 || rect.left() > size.width())
                continue;
            if (isBlack) // its frame
                painter.fillPath(keyPath(rect), QColor(kBed));
            const QRectF face = isBlack ? rect.adjusted(1, 0, -1, -1.5) : rect;
            const QColor plain = isBlack ? QColor(kBlackKeyFace) : white;
            painter.fillPath(keyPath(face), fill.value_or(plain));
            const QRectF free = face.adjusted(0, 0, 0, isBlack || isLow ? 0 : -nameHeight());
            if (purity(quad) != Purity::None)
                paintPurityMark(painter, purity(quad), inkOn(*fill), markPlace(free));
            else if (fill)
                paintKeyMark(painter, state(quad), inkOn(*fill), free);
        }
    }
}

int KeyboardPicture::nameHeight() const
{
    if (!hasNames || geometry.whiteWidth() < 2 * kMinLetter)
        return 0;
    return std::clamp(static_cast<int>(geometry.keyWidth * 3 / 4), kMinLetter, kMaxLetter);
}

void KeyboardPicture::paintNames(QPainter& painter) const
{
    QFont font = painter.font();
    font.setPixelSize(nameHeight());
    painter.setFont(font);
    const int below = nameHeight() / 2;
    for (const KeyQuad& quad : geometry.keys(static_cast<float>(size.height()))) {
        const bool isCut = origin + quad.right > size.width();
        if (quad.key % 12 != 0 || isCut)
            continue;
        const std::optional<QColor> fill = this->fill(quad);
        if (scheme == Scheme::Calm && fill && size.height() < kLowKeys)
            continue;
        if (scheme == Scheme::Calm)
            painter.setPen(fill ? inkOn(*fill) : QColor(kClassicName));
        else
            painter.setPen(fill && qGray(fill->rgb()) < 96 ? Qt::white : QColor(kClassicName));
        const QRect place(qRound(origin + quad.left), 0, qRound(quad.right - quad.left),
                          size.height() - below);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                         noteText(static_cast<unsigned>(quad.key)));
    }
}

} // namespace velmora
