#include <trnidom/TRNIDOM_Document.h>

#include <tools/dxmd/Input.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/capture/Message.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

void format(const Settings& settings, std::istream& in, Output& out) {
  constexpr unsigned kIndent = 2;
  XmlInput input(inputOf(settings.file, in, settings.onRead), settings.exact);
  refusalsNamed(input.name(), [&] {
    const TRNIDOM_Document document = input.parse();
    if (!settings.exact) dropIndentation(document.getDocumentElement(), false);
    if (settings.showSecrets)
      out.holdsSecrets();
    else
      maskSecrets(document);
    out.write(xmlText(document, settings.indent.value_or(kIndent)));
  });
}

}  // namespace dxmd_tool
