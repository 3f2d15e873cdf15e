#include "platform/base/Object.h"

CRuntimeClass CObject::classCObject = {"CObject", int(sizeof(CObject)), 0xFFFF, nullptr, nullptr};

CRuntimeClass* CObject::GetRuntimeClass() const { return RUNTIME_CLASS(CObject); }

bool CObject::IsKindOf(const CRuntimeClass* cls) const {
    return GetRuntimeClass()->IsDerivedFrom(cls);
}

CObject* CRuntimeClass::CreateObject() const { return m_pfnCreateObject ? m_pfnCreateObject() : nullptr; }

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
    for (const CRuntimeClass* cls = this; cls; cls = cls->m_pBaseClass) {
        if (cls == base)
            return true;
    }
    return false;
}
