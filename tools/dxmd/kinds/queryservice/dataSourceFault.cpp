#include <array>
#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

static void shape(Shape& s, QsDataSourceFaultHelper::SignonInfo& signon) {
  s.required("name", signon.name, "The sign-on's name");
  s.optional("searchPath", signon.searchPath, "Where the content manager finds it");
}

namespace {

using Helper = QsDataSourceFaultHelper;

struct Connection {
  I18NString name;
  I18NString searchPath;
  std::vector<Helper::SignonInfo> signons;
};

void shape(Shape& s, Connection& connection) {
  s.required("name", connection.name, "The connection's name");
  s.optional("searchPath", connection.searchPath,
             "Where the content manager finds it, or its connection string where the fault gives one");
  s.optional("signons", connection.signons, "Its sign-ons");
}

struct DataSource {
  I18NString name;
  I18NString type;
  std::vector<Connection> connections;
};

void shape(Shape& s, DataSource& dataSource) {
  s.required("name", dataSource.name, "The data source's name");
  s.optional("type", dataSource.type, "Its type");
  s.optional("connections", dataSource.connections, "Its connections");
}

struct Fault {
  I18NString code;
  I18NString subcode;
  I18NString string;
  I18NString substring;
  I18NString dataSource;
  std::optional<Connection> connection;
  std::optional<Helper::SignonInfo> signon;
  std::vector<DataSource> dataSources;
};

void shape(Shape& s, Fault& fault) {
  s.optional("faultcode", fault.code, "The code of the fault");
  s.optional("faultSubcode", fault.subcode, "Its more precise code");
  s.optional("faultstring", fault.string, "What is wrong, for people");
  s.optional("faultSubstring", fault.substring, "The same more precisely");
  s.optional("faultDataSource", fault.dataSource, "The name of the data source at fault");
  s.optional("faultConnection", fault.connection, "The connection at fault");
  s.optional("faultSignon", fault.signon, "The sign-on at fault");
  s.optional("dataSources", fault.dataSources, "The data sources described; those without a name are not decoded");
}

// Writing

void appendText(const TRNIDOM_Element& parent, const char* name, const I18NString& text) {
  if (!text.empty()) appendTextElement(parent, name, text);
}

void appendValue(const TRNIDOM_Element& parent, const char* name, const I18NString& value) {
  if (!value.empty()) appendElement(parent, name, "value", value);
}

void makeSignon(const TRNIDOM_Element& element, const Helper::SignonInfo& signon) {
  appendElement(element, "name", "value", signon.name);
  appendValue(element, "searchPath", signon.searchPath);
}

void makeConnection(const TRNIDOM_Element& element, const Connection& connection) {
  appendElement(element, "name", "value", connection.name);
  // Also when it is empty: readers would take that of a sign-on for it.
  appendElement(element, "searchPath", "value", connection.searchPath);
  for (const Helper::SignonInfo& signon : connection.signons) makeSignon(appendElement(element, "signon"), signon);
}

void makeDataSource(const TRNIDOM_Element& element, const DataSource& dataSource) {
  appendElement(element, "name", "value", dataSource.name);
  appendValue(element, "type", dataSource.type);
  for (const Connection& connection : dataSource.connections)
    makeConnection(appendElement(element, "connection"), connection);
}

TRNIDOM_Element make(const Fault& fault) {
  TRNIDOM_Element element = newElement("fault");
  appendText(element, "faultcode", fault.code);
  appendText(element, "faultSubcode", fault.subcode);
  appendText(element, "faultstring", fault.string);
  appendText(element, "faultSubstring", fault.substring);
  appendValue(element, "faultDataSource", fault.dataSource);
  if (fault.connection) makeConnection(appendElement(element, "faultConnection"), *fault.connection);
  if (fault.signon) makeSignon(appendElement(element, "faultSignon"), *fault.signon);
  for (const DataSource& dataSource : fault.dataSources)
    makeDataSource(appendElement(element, "dataSource"), dataSource);
  return element;
}

// Reading

/// All data sources of a fault, each as the library describes it when asked for its name.
///
/// The library searches the whole fault for one name, and describes data sources of one name as one. Data sources nest
/// to any depth, and to search below each of them would cost the square of it: one walk finds them all.
class DataSources {
 public:
  explicit DataSources(const TRNIDOM_Node& fault) {
    walk(
        fault, [this](const TRNIDOM_Node& node) { enter(node); }, [this](const TRNIDOM_Node& node) { leave(node); });
  }

  std::vector<DataSource> records() const {
    std::vector<DataSource> records;
    for (const Found& found : m_dataSources) {
      if (!found.texts[kName]) continue;
      DataSource& record = records.emplace_back(DataSource{*found.texts[kName], found.text(kType), {}});
      for (std::size_t i = found.begin; i < found.end; ++i) record.connections.push_back(connection(m_connections[i]));
    }
    return records;
  }

 private:
  enum Property { kName, kType, kSearchPath, kConnectionString };
  static constexpr std::array kProperties{"name", "type", "searchPath", "connectionString"};

  /// A data source, connection or sign-on.
  struct Found {
    I18NString text(Property property) const { return texts[property].value_or(I18NString()); }

    TRNIDOM_Node element;
    const std::deque<Found>* inside;  ///< where what it lists is, or null
    std::size_t begin;                ///< the first in there
    std::size_t end;                  ///< behind the last; known once the walk has left the element
    std::array<std::optional<I18NString>, kProperties.size()> texts;  ///< of the first elements of these names below
  };

  void enter(const TRNIDOM_Node& node) {
    if (node.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return;
    const I18NString name = node.getNodeName();
    if (name == "dataSource") return open(node, m_dataSources, &m_connections);
    if (name == "connection") return open(node, m_connections, &m_signons);
    if (name == "signon") return open(node, m_signons, nullptr);
    for (std::size_t property = 0; property < kProperties.size(); ++property) {
      if (name != kProperties[property]) continue;
      const I18NString value = TRNIDOM_Element(node).getAttribute("value");
      for (Found* found : m_lacking[property]) found->texts[property] = value;
      m_lacking[property].clear();
    }
  }

  void open(const TRNIDOM_Node& node, std::deque<Found>& list, const std::deque<Found>* inside) {
    const std::size_t begin = inside != nullptr ? inside->size() : 0;
    Found* const found = &list.emplace_back(Found{node, inside, begin, begin, {}});
    m_open.push_back(found);
    for (std::vector<Found*>& lacking : m_lacking) lacking.push_back(found);
  }

  void leave(const TRNIDOM_Node& node) {
    if (m_open.empty() || m_open.back()->element != node) return;
    Found* const found = m_open.back();
    m_open.pop_back();
    if (found->inside != nullptr) found->end = found->inside->size();
    for (std::vector<Found*>& lacking : m_lacking)
      if (!lacking.empty() && lacking.back() == found) lacking.pop_back();
  }

  Connection connection(const Found& found) const {
    const Property path = found.texts[kConnectionString] ? kConnectionString : kSearchPath;
    Connection record{found.text(kName), found.text(path), {}};
    for (std::size_t i = found.begin; i < found.end; ++i)
      record.signons.push_back({m_signons[i].text(kName), m_signons[i].text(kSearchPath)});
    return record;
  }

  // Deques, because what is open is pointed to while they grow.
  std::deque<Found> m_dataSources;
  std::deque<Found> m_connections;
  std::deque<Found> m_signons;

  std::vector<Found*> m_open;                                     ///< those that the walk is in, outermost first
  std::array<std::vector<Found*>, kProperties.size()> m_lacking;  ///< those of them that have not met the property
};

Fault take(TRNIDOM_Element& root) {
  refuseHeldByMany(root, {"dataSource", "connection"}, {"connection", "signon"});
  Helper helper;
  helper.Take(root);
  Fault fault{helper.GetFaultCode(),
              helper.GetFaultSubCode(),
              helper.GetFaultString(),
              helper.GetFaultSubString(),
              helper.GetFaultDataSourceName(),
              {},
              {},
              {}};
  if (const Helper::ConnectionInfo* info = helper.GetFaultConnection()) {
    Connection& connection = fault.connection.emplace(Connection{info->name, info->searchPath, {}});
    for (const Helper::SignonInfo* signon : info->signons) connection.signons.push_back(*signon);
  }
  if (const Helper::SignonInfo* signon = helper.GetFaultSignon()) fault.signon = *signon;
  fault.dataSources = DataSources(root).records();
  return fault;
}

/// A fault is one, whatever it says; another element, when it says something of one.
std::string errorsIn(const TRNIDOM_Element& root) {
  std::string said;
  for (const char* part : {"faultcode", "faultSubcode", "faultstring", "faultSubstring"})
    if (const I18NString text = textOf(TRNIDOM_Helper::findFirstElement(root, part)); !text.empty())
      said += ": " + text.toUtf8();
  return said.empty() && root.getNodeName() != "fault" ? "" : "a fault" + said;
}

}  // namespace

Kind kinds::dataSourceFault() {
  Kind kind = kindOf(make, take);
  kind.summary = "Fault that the query service reports about a data source";
  kind.purpose = R"(What the query service sends instead of an answer when a data source, its connection or its
sign-on is at fault: what is wrong, with what, and descriptions of the data sources.)";
  kind.helper = "QsDataSourceFaultHelper";
  kind.writes = Does::kTool;
  kind.roots = {"fault"};
  kind.orHolding = {"faultcode", "faultstring", "faultDataSource", "faultConnection", "faultSignon", "dataSource"};
  kind.errors = errorsIn;
  kind.example = R"({
  "faultcode": "Server",
  "faultSubcode": "DS-17",
  "faultstring": "The data source cannot be reached.",
  "faultSubstring": "Sign-on refused",
  "faultDataSource": "Orders",
  "faultConnection": {
    "name": "Orders test",
    "searchPath": "/content/dataSource[@name='Orders']",
    "signons": [{"name": "reader", "searchPath": "signon[@name='reader']"}]
  },
  "faultSignon": {"name": "reader", "searchPath": "signon[@name='reader']"},
  "dataSources": [
    {
      "name": "Orders",
      "type": "OL",
      "connections": [
        {"name": "Orders test", "searchPath": "Driver=Example;Server=db.example.com;Pwd=swordfish"}
      ]
    }
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
