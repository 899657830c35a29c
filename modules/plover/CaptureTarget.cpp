#include "CaptureTarget.h"

#include "X11Display.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using foundation::Failure;
using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

using Target = foundation::Result<CaptureTarget, Sentence>;

/// Without a compositor a window has no pixels beyond the screen's edges.
Target windowTarget(const RecordPlan &plan, const X11Display &display)
{
    const auto window = display.window(plan.window);
    if (!window)
        return Failure{noSuchWindow(plan.window)};
    const QRect whole({0, 0}, window->area.size());
    const QRect seen = window->area.intersected(display.area()).translated(-window->area.topLeft());
    const QRect area = recordableArea(display.isComposited() ? whole : seen, whole);
    if (area.isEmpty())
        return Failure{seen.isEmpty() ? Sentence("The area to be recorded is outside the screen."_key)
                                      : Sentence("The window is too small to be recorded."_key)};
    return CaptureTarget{.display = display.name(), .window = plan.window, .area = area};
}

Target displayTarget(const RecordPlan &plan)
{
    const auto opened = X11Display::open();
    if (!opened)
        return Failure{opened.reason()};
    const X11Display &display = **opened;
    if (plan.what == RecordPlan::What::Window)
        return windowTarget(plan, display);
    QRect wanted = plan.area;
    if (plan.what == RecordPlan::What::Screen) {
        const QList<X11Display::Monitor> monitors = display.monitors();
        const auto found = std::ranges::find_if(monitors, [&](const X11Display::Monitor &monitor) {
            return plan.screen.isEmpty() || monitor.name == plan.screen;
        });
        if (found == monitors.end()) {
            QStringList names;
            for (const X11Display::Monitor &monitor : monitors)
                names.append(monitor.name);
            return Failure{
                Sentence("There is no screen \"%1\". There is: %2."_key, {plan.screen, names.join(u", "_s)})};
        }
        wanted = found->area;
    }
    const QRect area = recordableArea(wanted, display.area());
    if (area.isEmpty())
        return Failure{Sentence("The area to be recorded is outside the screen."_key)};
    return CaptureTarget{.display = display.name(), .area = area};
}

}  // namespace

Sentence noSuchWindow(quint32 window)
{
    return {"There is no window %1 to be seen."_key, {QString::number(window)}};
}

QRect recordableArea(const QRect &wanted, const QRect &desktop)
{
    QRect area = wanted.intersected(desktop);
    area.setSize({area.width() & ~1, area.height() & ~1});
    return area.width() >= 2 && area.height() >= 2 ? area : QRect();
}

Target cameraTarget(const RecordPlan &plan)
{
    CaptureTarget target;
    if (plan.camera.startsWith("lavfi:"_L1)) {
        target.generator = plan.camera.mid(6);
        return target;
    }
    target.camera = plan.camera;
    if (!target.camera.isEmpty() && QFileInfo::exists(target.camera))
        return target;
    const CameraDevice first = cameraDevices().value(0);
    if (first.path.isEmpty())
        return Failure{Sentence("No camera was found."_key)};
    target.camera = first.path;
    if (!plan.camera.isEmpty())
        target.note = {"The chosen camera is missing: %1 is recorded instead."_key, {first.name}};
    return target;
}

Target captureTarget(const RecordPlan &plan)
{
    if (plan.what == RecordPlan::What::Camera)
        return cameraTarget(plan);
    const Target pictures =
        plan.what == RecordPlan::What::Portal ? Target(CaptureTarget{.isShared = true}) : displayTarget(plan);
    if (!pictures || !plan.inset)
        return pictures;
    const Target camera = cameraTarget(plan);
    if (!camera)
        return camera;
    CaptureTarget both = *pictures;
    both.camera = camera->camera;
    both.generator = camera->generator;
    both.note = camera->note;
    return both;
}

}  // namespace kestrel
