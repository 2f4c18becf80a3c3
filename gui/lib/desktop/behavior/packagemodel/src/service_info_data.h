#pragma once

#include "child_list.h"

#include <packagemodel/service_info_model.h>

namespace Zel {

struct PACKAGEMODEL_NO_EXPORT ServiceInfoModel::Data : ChildData<ServiceInfoModel> {
    using ChildData::ChildData;
};

} // namespace Zel
