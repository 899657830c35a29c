#include "SystemInformation.h"

#include <QLibrary>

#include <fcntl.h>
#include <unistd.h>
#include <va/va.h>
#include <va/va_drm.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

template <class Function>
struct LibraryFunction {
    LibraryFunction(QLibrary &library, const char *name) : function(reinterpret_cast<Function *>(library.resolve(name)))
    {
    }
    template <class... Arguments>
    auto operator()(Arguments... arguments) const
    {
        return function(arguments...);
    }
    Function *function;
};

/// libva, loaded where the machine has a device to ask about: most starts do without.
struct VideoLibrary {
    QLibrary va{u"va"_s, 2};
    QLibrary drm{u"va-drm"_s, 2};
    LibraryFunction<decltype(vaGetDisplayDRM)> getDisplay{drm, "vaGetDisplayDRM"};
    LibraryFunction<decltype(vaSetInfoCallback)> setInfoCallback{va, "vaSetInfoCallback"};
    LibraryFunction<decltype(vaSetErrorCallback)> setErrorCallback{va, "vaSetErrorCallback"};
    LibraryFunction<decltype(vaInitialize)> initialize{va, "vaInitialize"};
    LibraryFunction<decltype(vaTerminate)> terminate{va, "vaTerminate"};
    LibraryFunction<decltype(vaMaxNumEntrypoints)> maxNumEntrypoints{va, "vaMaxNumEntrypoints"};
    LibraryFunction<decltype(vaQueryConfigEntrypoints)> queryConfigEntrypoints{va, "vaQueryConfigEntrypoints"};
    LibraryFunction<decltype(vaGetConfigAttributes)> getConfigAttributes{va, "vaGetConfigAttributes"};

    bool isComplete() const
    {
        return getDisplay.function && setInfoCallback.function && setErrorCallback.function && initialize.function &&
               terminate.function && maxNumEntrypoints.function && queryConfigEntrypoints.function &&
               getConfigAttributes.function;
    }
};

const VideoLibrary &videoLibrary()
{
    static const VideoLibrary library;
    return library;
}

/// A libva session on one render node.
class VideoDevice {
public:
    explicit VideoDevice(const char *path) : m_file(open(path, O_RDWR | O_CLOEXEC))
    {
        if (m_file < 0 || !videoLibrary().isComplete())
            return;
        m_display = videoLibrary().getDisplay(m_file);
        if (!m_display)
            return;
        videoLibrary().setInfoCallback(m_display, nullptr, nullptr);
        videoLibrary().setErrorCallback(m_display, nullptr, nullptr);
        int major = 0, minor = 0;
        m_isOpen = videoLibrary().initialize(m_display, &major, &minor) == VA_STATUS_SUCCESS;
    }
    ~VideoDevice()
    {
        if (m_display)
            videoLibrary().terminate(m_display);
        if (m_file >= 0)
            close(m_file);
    }
    VideoDevice(const VideoDevice &) = delete;
    VideoDevice &operator=(const VideoDevice &) = delete;

    bool canEncode(VAProfile profile, int width, int height) const
    {
        if (!m_isOpen)
            return false;
        std::vector<VAEntrypoint> entrypoints(size_t(videoLibrary().maxNumEntrypoints(m_display)));
        int count = 0;
        if (videoLibrary().queryConfigEntrypoints(m_display, profile, entrypoints.data(), &count) != VA_STATUS_SUCCESS)
            return false;
        return std::any_of(entrypoints.begin(), entrypoints.begin() + count, [&](VAEntrypoint entrypoint) {
            // The transcoder does not try the low-power encoder by itself.
            return entrypoint == VAEntrypointEncSlice && fits(profile, entrypoint, width, height);
        });
    }

private:
    bool fits(VAProfile profile, VAEntrypoint entrypoint, int width, int height) const
    {
        VAConfigAttrib limits[] = {{VAConfigAttribMaxPictureWidth, 0}, {VAConfigAttribMaxPictureHeight, 0}};
        if (videoLibrary().getConfigAttributes(m_display, profile, entrypoint, limits, 2) != VA_STATUS_SUCCESS)
            return false;
        const auto allows = [](const VAConfigAttrib &limit, int size) {
            return limit.value == VA_ATTRIB_NOT_SUPPORTED || limit.value >= unsigned(size);
        };
        return allows(limits[0], width) && allows(limits[1], height);
    }

    int m_file;
    VADisplay m_display = nullptr;
    bool m_isOpen = false;
};

}  // namespace

const HardwareEncoderArguments hardwareEncoderArguments = {.device = "-vaapi_device",
                                                           .filter = "format=nv12,hwupload",
                                                           .encoder = "-c:v h264_vaapi",
                                                           .quality = "-qp 23",
                                                           .best = "-qp 19"};

QString hardwareEncoderDevice(quint32 codec, int width, int height)
{
    constexpr quint32 avc1 = 0x61766331;
    constexpr const char *renderNodes[] = {"/dev/dri/renderD128", "/dev/dri/renderD129"};
    constexpr quint32 hvc1 = 0x68766331;
    if (codec != avc1 && codec != hvc1)
        return {};
    for (const char *node : renderNodes) {
        if (VideoDevice(node).canEncode(codec == avc1 ? VAProfileH264Main : VAProfileHEVCMain, width, height))
            return QString::fromLatin1(node);
    }
    return {};
}

}  // namespace kestrel::tarnwell
