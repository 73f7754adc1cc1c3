#include "host/component.h"

#include <new>

#include "buffer/handle_table.h"
#include "component/component_file.h"
#include "platform/faults.h"

namespace {

struct Component {
    std::uint32_t nGeneration = 0;
    std::vector<ComponentObject> objects;
};

CHandleTable<Component>& Table() {
    static CHandleTable<Component> table;
    return table;
}

/// Null when the component has no such object.
const ComponentObject* ObjectAt(const Component& component, int nIndex) {
    const bool bThere = nIndex >= 0 && static_cast<std::size_t>(nIndex) < component.objects.size();
    return bThere ? &component.objects[static_cast<std::size_t>(nIndex)] : nullptr;
}

} // namespace

HCOMPONENT wcCreateComponent() {
    Component* const pComponent =
        platform::FaultTrips("component-create") ? nullptr : new (std::nothrow) Component;
    const HCOMPONENT hComponent = pComponent ? Table().Add(pComponent) : 0;
    if (hComponent == 0) {
        delete pComponent;
    }
    return hComponent;
}

int wcReadZELToComp(HCOMPONENT hComponent, const char* pszFile, int /*nReserved*/, int /*nReserved2*/,
                    int /*nReserved3*/) {
    Component* const pComponent = Table().Find(hComponent);
    if (!pComponent || !pszFile || platform::FaultTrips("component-read")) {
        return 0;
    }
    return LoadComponent(pszFile, pComponent->objects) ? 1 : 0;
}

int wcGetObjInfo(HCOMPONENT hComponent, int nIndex, ComponentObjectInfo* pInfo) {
    const Component* const pComponent = Table().Find(hComponent);
    if (!pComponent || !pInfo || pInfo->nSize != sizeof *pInfo || nIndex < 0 ||
        platform::FaultTrips("component-info")) {
        return 0;
    }
    *pInfo = ComponentObjectInfo{.nSize = sizeof *pInfo};
    if (const ComponentObject* const pObject = ObjectAt(*pComponent, nIndex)) {
        pObject->name.copy(pInfo->szName, MostNameBytes);
        pInfo->nX = pObject->x;
        pInfo->nY = pObject->y;
        pInfo->nWidth = pObject->width;
        pInfo->nHeight = pObject->height;
    }
    return 1;
}

int wcGetObjImg_Mask(HCOMPONENT hComponent, int nIndex, HBUF32* phImage, HBUF32* phMask) {
    if (!phImage || !phMask) {
        return 0;
    }
    *phImage = *phMask = 0;
    const Component* const pComponent = Table().Find(hComponent);
    const ComponentObject* const pObject = pComponent ? ObjectAt(*pComponent, nIndex) : nullptr;
    if (!pObject || platform::FaultTrips("component-image")) {
        return 0;
    }
    *phImage = pObject->image.Get();
    *phMask = pObject->mask.Get();
    return 1;
}

int wcDeleteComponent(HCOMPONENT hComponent) {
    Component* const pComponent = Table().Find(hComponent);
    if (!pComponent) {
        return 0;
    }
    Table().Remove(hComponent);
    delete pComponent;
    return 1;
}
