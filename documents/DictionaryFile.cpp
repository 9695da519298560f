#include "documents/DictionaryFile.h"

#include "business/ProcessDictionaryBusiness.h"
#include "documents/DocumentKind.h"
#include "documents/internal/DictionaryDocument.h"
#include "documents/internal/JsonText.h"
#include "documents/internal/Keys.h"
#include "model/OwnedList.h"
#include "model/TDcEntity.h"

using namespace Elements;
using namespace Qt::Literals::StringLiterals;

/// What stands around the root entity.
struct DictionaryFile::Frame {
    QString key = u"root"_s; ///< Of the root; empty when the document is the root itself or an array.
    Form form = Form::Element;
    QVariantMap others; ///< The other keys beside the root's.
    JsonText::Style style;
};

DictionaryFile::DictionaryFile() : m_root(std::make_unique<TDcEntity>()), m_frame(std::make_unique<Frame>())
{
}

DictionaryFile::~DictionaryFile() = default;

void DictionaryFile::setRoot(std::unique_ptr<TDcEntity> root)
{
    m_root = std::move(root);
}

std::unique_ptr<TDcEntity> DictionaryFile::takeRoot()
{
    return std::exchange(m_root, std::make_unique<TDcEntity>());
}

std::unique_ptr<DictionaryFile> DictionaryFile::withRoot(std::unique_ptr<TDcEntity> root) const
{
    auto file = std::make_unique<DictionaryFile>();
    file->setRoot(std::move(root));
    *file->m_frame = *m_frame;
    file->belongAs(*this);
    return file;
}

bool DictionaryFile::load(const QByteArray &bytes, const std::stop_token &stop)
{
    if (stopped(stop))
        return false;
    const JsonText::Content text = JsonText::read(bytes);
    if (!text.value.isValid())
        return fail(Error::Malformed, text.problem);
    if (stopped(stop))
        return false;

    Frame frame{.key = {}, .form = Form::Single, .others = {}, .style = text.style};
    QVariant roots = text.value;
    if (QVariantMap map = text.value.toMap(); roots.typeId() == QMetaType::QVariantMap) {
        if (DocumentKind::isRunConfiguration(map))
            return fail(Error::NoRoot, tr("This is a run configuration, not a dictionary."));
        frame.key = DocumentKind::rootKey(map);
        if (!frame.key.isEmpty()) {
            roots = map.take(frame.key);
            frame.others = map;
        }
    }
    if (roots.typeId() == QMetaType::QVariantList)
        frame.form = Form::Element;

    OwnedList<TDcEntity> entities;
    if (roots.typeId() == QMetaType::QVariantList || roots.typeId() == QMetaType::QVariantMap)
        entities.reset(
            ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades({{u"root"_s, roots}}, 0));
    if (entities.get()->isEmpty())
        return fail(Error::NoRoot, tr("There is no root entity."));
    if (entities.get()->size() > 1)
        return fail(Error::SeveralRoots,
                    tr("There are %1 root entities instead of one.").arg(entities.get()->size()));

    if (stopped(stop))
        return false;
    forEach(*entities.get(), roots, DictionaryDocument::remember);
    if (stopped(stop))
        return false;
    m_root.reset(entities.get()->takeFirst());
    *m_frame = std::move(frame);
    return true;
}

QByteArray DictionaryFile::content() const
{
    QJsonObject written;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(m_root.get(), &written);
    DictionaryDocument::restore(*m_root, written, m_frame->form);
    const QJsonValue root = withElement(*m_root, written);
    const QJsonValue value = m_frame->form == Form::Single && !written.isEmpty() ? root : QJsonArray{root};
    if (m_frame->key.isEmpty())
        return JsonText::write(value, m_frame->style);
    QJsonObject document = QJsonObject::fromVariantMap(m_frame->others);
    document.insert(m_frame->key, value);
    return JsonText::write(document, m_frame->style);
}
