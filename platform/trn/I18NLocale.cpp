#include <trn/I18NLocale.h>

I18NLocale::I18NLocale(const I18NString& name) : m_name(name) {}
