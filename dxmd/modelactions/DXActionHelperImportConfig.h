#ifndef DXMD_MODELACTIONS_DXACTIONHELPERIMPORTCONFIG_H
#define DXMD_MODELACTIONS_DXACTIONHELPERIMPORTCONFIG_H

#include <cstddef>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/ActionHandlerBase.h>

/// The configuration of a metadata import source: the "source" element, read only.
///
/// Read: lazily. `Take` remembers the element; each getter reads it anew. Of several "connection" or "capabilities"
/// elements the first, at any depth, counts.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperImportConfig : public ActionHandlerBase {
 public:
  /// A parameter of the connection.
  struct DXMD_API ConnectionItem {
    I18NString name;           ///< "name"
    I18NString nameInRequest;  ///< "nameInRequest": what requests call it

    /// Reads an "item"; a missing attribute is an empty text.
    static ConnectionItem Make(TRNIDOM_Element& item);
  };

  /// A capability of the source.
  struct DXMD_API ConfigItem {
    I18NString name;   ///< "name"
    I18NString value;  ///< "value"

    /// Reads an "item"; a missing attribute is an empty text.
    static ConfigItem Make(TRNIDOM_Element& item);
  };

  /// A configuration without anything until one is taken.
  DXActionHelperImportConfig();
  ~DXActionHelperImportConfig() override;

  // Each of these replaces the caller's text by the answer, which may be empty.

  /// Gives the source's attribute "queryType".
  /// @return whether it is there and not empty. Before `Take` the text stays as it was.
  bool getQueryType(I18NString& queryType) const;

  /// Gives the source's attribute "pluginName", with the same result.
  bool getPluginName(I18NString& pluginName) const;

  /// Gives the source's attribute "interfaceType", with the same result.
  bool getInterfaceType(I18NString& interfaceType) const;

  /// Gives the attribute "provider" of the first "connection".
  /// @return whether it is there and not empty. Before `Take` and without a "connection" the text stays as it was.
  bool getConnectionProvider(I18NString& provider) const;

  /// Appends the parameters of the first "connection" to the caller's.
  void getConnectionItems(std::vector<ConnectionItem>& items) const;

  /// Appends the capabilities of the first "capabilities" to the caller's.
  void getCapabilities(std::vector<ConfigItem>& items) const;

  /// The "item" elements, at any depth, below the first element of that name below the root; none for a null root.
  static TRNIDOM_NodeList getItemNodes(const TRNIDOM_Element& root, const I18NString& listName);

 protected:
  /// @throws TRNAssertError for a null element and for one not named "source"; the one taken before is kept then.
  /// The argument is spelt as the assertion's text has it.
  void doTake(TRNIDOM_Element& elmSourceConfig) override;

 private:
  bool readAttribute(const I18NString& name, I18NString& value) const;

  TRNIDOM_Element m_sourceConfig;  // "source", last taken
};

/// Appends to the caller's vector a record for each "item" below the first element named `listName` below the root. The
/// vector's record type makes the record with its static `Make`.
/// @tparam Vector  a vector of `ConnectionItem`, of `ConfigItem`, or of a record of the caller's own.
/// @relates DXActionHelperImportConfig
template <typename Vector>
void getItems(const TRNIDOM_Element& root, const I18NString& listName, Vector& items) {
  const TRNIDOM_NodeList nodes = DXActionHelperImportConfig::getItemNodes(root, listName);
  for (std::size_t i = 0; i < nodes.getLength(); ++i) {
    TRNIDOM_Element item = nodes.item(i);
    if (item.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) items.push_back(Vector::value_type::Make(item));
  }
}

#endif
