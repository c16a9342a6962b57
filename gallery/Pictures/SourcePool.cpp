#include <gallery/Pictures/SourcePool.h>

#include <gallery/Pictures/DrawnCamera.h>
#include <gallery/Pictures/StillPicture.h>
#include <gallery/Pictures/VideoFile.h>

#include <algorithm>

namespace OperatorClient {

namespace {

std::shared_ptr<FrameSource> MakeSource(const SourceSpec& spec)
{
    switch (spec.kind) {
    case SourceSpec::Kind::Photo:
        return std::make_shared<StillPicture>(spec.path);
    case SourceSpec::Kind::Video:
        return std::make_shared<VideoFile>(spec.path);
    case SourceSpec::Kind::Camera:
        break;
    }
    return std::make_shared<DrawnCamera>(spec.camera);
}

} // namespace

std::shared_ptr<FrameSource> SourcePool::Get(const SourceSpec& spec)
{
    std::weak_ptr<FrameSource>& kept = m_sources[spec.ToText()];
    if (std::shared_ptr<FrameSource> source = kept.lock())
        return source;
    std::shared_ptr<FrameSource> source = MakeSource(spec);
    kept = source;
    return source;
}

bool SourcePool::AllReady() const
{
    return std::all_of(m_sources.begin(), m_sources.end(), [](const std::weak_ptr<FrameSource>& kept) {
        const std::shared_ptr<FrameSource> source = kept.lock();
        return !source || source->IsReady();
    });
}

} // namespace OperatorClient
