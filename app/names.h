// The names under which a scenario knows the page's nodes.
#pragma once

#include <cstdint>
#include <map>
#include <string>

class CDesk;
class CImgNode;

/// Labels for nodes. A companion is called after its object ("A.shadow", "A.frame"), a copy after what it was
/// copied from ("A#2"), a pasted object "paste#1", new text "text#1" and so on. A node keeps its name when it
/// is gone, so that a record can still tell it.
class CNames {
  public:
    explicit CNames(const CDesk& desk) : m_desk(desk) {}

    /// Nobody bears a name any more, and numbers start again. What the nodes so far were called stays known.
    void Clear();
    /// Labels a node; a former holder of the name loses it.
    void Give(const std::string& name, const CImgNode* pNode);
    /// Names the nodes of the page that have come since the last call, oldest first. A node off the page is
    /// named when somebody asks for its name.
    void NameNewNodes();
    /// The live node of that name, or null.
    CImgNode* Find(const std::string& name);
    /// The node's name; empty for a null node.
    std::string Of(const CImgNode* pNode);
    /// The name of a node that may be gone; empty for none.
    std::string OfId(std::uint32_t nId);

  private:
    void NameNewNode(const CImgNode* pNode);
    /// The first name of the root from a number on that nobody bears; the number becomes that name's.
    std::string FreeName(const std::string& root, int& nLast) const;
    std::string CompanionName(const CImgNode& owner, const CImgNode* pNode);
    /// The live node that was given the name itself, or null.
    CImgNode* Labelled(const std::string& name) const;

    const CDesk& m_desk;
    std::map<std::string, std::uint32_t> m_idByName;
    std::map<std::uint32_t, std::string> m_nameById;
    std::map<std::uint32_t, std::string> m_rootById; ///< of copies: what the first of the family is called
    std::map<std::string, int> m_copies;             ///< how many bear a root name, the first included
    int m_nTexts = 0;
    int m_nPastes = 0;
};
