// SPDX-License-Identifier: Apache-2.0

#include "KeptJson.h"

#include "JsonWriter.h"
#include "StampText.h"

namespace {

void write(JsonWriter& writer, QAnyStringView key, QStringView text)
{
    writer.key(key);
    writer.string(text);
}

void writeIfPresent(JsonWriter& writer, QAnyStringView key, const std::optional<QString>& text)
{
    if (text) {
        write(writer, key, *text);
    }
}

template <typename Element>
void writeList(JsonWriter& writer, QAnyStringView key, const QList<Element>& elements,
               void (*writeMembers)(JsonWriter&, const Element&))
{
    writer.key(key);
    writer.beginArray();
    for (const Element& element : elements) {
        writer.beginObject();
        writeMembers(writer, element);
        writer.endObject();
    }
    writer.endArray();
}

void writeKeeping(JsonWriter& writer, const ExportedThread::Keeping& keeping)
{
    write(writer, "signalId", keeping.signalId);
    write(writer, "savedAt", StampText::of(keeping.saved.savedAt));
    write(writer, "saveReason", keeping.saved.saveReason);
    write(writer, "note", keeping.saved.note);
}

void writeEvent(JsonWriter& writer, const InformationTimelineEvent& event)
{
    write(writer, "date", event.date);
    write(writer, "dateLabel", event.dateLabel);
    write(writer, "summary", event.summary);
    write(writer, "source", event.source);
}

void writeRelated(JsonWriter& writer, const InformationRelatedSource& source)
{
    write(writer, "label", source.label);
    write(writer, "url", source.url);
}

void writeSignal(JsonWriter& writer, const InformationSignal& signal)
{
    write(writer, "signalId", signal.id);
    write(writer, "title", signal.title);
    write(writer, "url", signal.originalURL);
    write(writer, "source", signal.source);
    write(writer, "lane", QString(rawValue(signal.lane)));
    writeIfPresent(writer, "publishedAt", signal.publishedAt);
    write(writer, "observedAt", signal.observedAt);
    write(writer, "summary", signal.summary);
    writeIfPresent(writer, "updateSummary", signal.updateSummary);
    writeIfPresent(writer, "digest", signal.digest);
    write(writer, "why", signal.why);
    write(writer, "caveat", signal.caveat);
    writeList(writer, "timeline", signal.timeline, writeEvent);
    writeList(writer, "relatedSources", signal.relatedSources, writeRelated);
}

void writeThread(JsonWriter& writer, const ExportedThread& thread)
{
    write(writer, "targetId", thread.targetId);
    writer.key("following");
    writer.boolean(thread.isFollowed);
    writeList(writer, "kept", thread.keepings, writeKeeping);
    if (thread.signal) {
        writer.key("newest");
        writer.beginObject();
        writeSignal(writer, *thread.signal);
        writer.endObject();
    }
}

void writeHandIn(JsonWriter& writer, const CustomInformationSource& source)
{
    write(writer, "input", source.input);
    write(writer, "createdAt", StampText::of(source.createdAt));
}

} // namespace

QByteArray keptJson(const QList<ExportedThread>& threads,
                    const QList<CustomInformationSource>& handedIn)
{
    JsonWriter writer;
    writer.beginObject();
    write(writer, "schemaVersion", u"corvanite-kept-export-v1");
    writeList(writer, "threads", threads, writeThread);
    writeList(writer, "customSources", handedIn, writeHandIn);
    writer.endObject();
    return writer.document();
}
