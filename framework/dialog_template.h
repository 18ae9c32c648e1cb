#pragma once

#include "framework/property_keys.h"
#include "framework/property_set.h"

// A set that names a dialog's template and nothing else; the name is kept, not copied.
[[nodiscard]] inline PropertySet TemplateProperties(const wchar_t* templateName) {
    PropertySet properties;
    properties.SetText(property::DialogTemplate, templateName);
    return properties;
}
