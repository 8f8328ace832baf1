// SPDX-License-Identifier: Apache-2.0

#include "ModelOverNetwork.h"

#include <QTest>

namespace {

constexpr int patienceMilliseconds = 60'000;

} // namespace

/// Counts the answers that came.
class ModelOverNetwork::CountingSiteClient final : public SiteClient
{
public:
    CountingSiteClient(const ProductSite& site, NetworkSiteClient::Limits limits)
        : m_client(site, limits)
    {
    }

    /// Which the documents of these tests lead to.
    QString host() const override { return u"corvanite.example"_qs; }
    QUrl page(const QString& path) const override { return m_client.page(path); }

    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override
    {
        Answer answer = co_await m_client.get(path, byteLimit);
        ++answers;
        co_return answer;
    }

    int answers = 0;

private:
    NetworkSiteClient m_client;
};

ModelOverNetwork::ModelOverNetwork(std::unique_ptr<LoopbackSite> reachedSite,
                                   NetworkSiteClient::Limits limits)
    : site(std::move(reachedSite)),
      m_client(std::make_unique<CountingSiteClient>(ProductSite::fromOrigin(site->origin()).value(),
                                                    limits))
{
    sample.hasRepository = false;
    sample.runningVersion = u"1.2.3"_qs;
    m_model = sample.make(sample.shown(), *m_client, sample.files);
}

ModelOverNetwork::~ModelOverNetwork() = default;

void ModelOverNetwork::setAnswer(const QString& path, const LoopbackSite::Answer& answer)
{
    site->setAnswer(path, answer ? answer : site->endless(200));
}

void ModelOverNetwork::refresh()
{
    m_model->refreshPackFromSite();
    if (!QTest::qWaitFor([this] { return !m_model->isSyncingPack(); }, patienceMilliseconds)) {
        qFatal("The refresh does not end.");
    }
}

void ModelOverNetwork::probe()
{
    const int before = m_client->answers;
    m_model->probeAppUpdateOnce();
    if (!QTest::qWaitFor([&] { return m_client->answers > before; }, patienceMilliseconds)) {
        qFatal("Asking for a newer build does not end.");
    }
}

void ModelOverNetwork::quit()
{
    m_model.reset();
    m_client.reset();
}

bool ModelOverNetwork::isUntouched() const
{
    return RefreshSample::shownBy(*m_model) == sample.shown() && sample.files.files.isEmpty();
}
