#pragma once

#include "business/business_quillon_export.h"
#include "common/DictionaryUtil.h"
#include "model/TDcEntity.h"

#include <QList>

/// What follows when the selectable mark of an entity is switched.
class BUSINESS_QUILLON_EXPORT BusinessEntity
{
public:
    /// Appends the selectable entities below \a entity to \a result, in pre-order. A null entity adds
    /// nothing.
    void selectableChildren(TDcEntity *entity, QList<TDcEntity *> &result);

    /// To be called once the mark of \a entity has been cleared: asks whether the selectable entities below
    /// it shall lose theirs as well, and returns those that the caller is to deselect.
    ///
    /// Without such entities nothing is asked. If the user says no, \a entity is marked again and the list is
    /// empty. An entity that is still marked gets its list without a question. The caller owns the list.
    [[nodiscard]] QList<TDcEntity *> *verifyChildrenSelectCheck(TDcEntity *entity);

private:
    DictionaryUtil m_dictionaryUtil;
};
