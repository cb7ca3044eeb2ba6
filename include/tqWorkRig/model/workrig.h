// WorkRig: the document, everything set up for one machining job.
#pragma once

#include "measures/tqmeasurable.h"
#include "measures/tqunitsfactory.h"
#include "misc/export.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

/// The document: a unit system, two file names and the objects of the set-up. Copies are shallow.
class TQ_EXPORT WorkRig : public BaseObject, public measures::tqMeasurable {
public:
    /// An empty rig with the empty display name; units other than metric or inch throw tqmeasuresException 2141.
    explicit WorkRig(const measures::tqUnitsFactory::Units& units);
    /// Copies names and units, and shares the attribute map.
    WorkRig(const WorkRig& other);
    /// The same as the copy constructor, member by member.
    WorkRig& operator=(const WorkRig& other);
    ~WorkRig() override;

    /// The same object, or the same units, machine XML file and NC file; display name and attributes are ignored.
    bool operator==(const WorkRig& other) const;
    bool operator!=(const WorkRig& other) const { return !(*this == other); }

    /// The name of a machine definition file.
    const tqstring& GetMachineXMLFile() const { return m_machineXMLFile; }
    /// Stores the text unchanged.
    void SetMachineXMLFile(const tqstring& machineXMLFile);
    /// The name and extension of a part program file.
    const tqstring& GetNCFile() const { return m_ncFile; }
    /// Stores only the file part of a path: name, ".", extension, or the name alone when the extension is empty.
    void SetNCFile(const tqstring& ncFile);

protected:
    /// Empty on purpose: a change of unit system retags the rig and scales nothing it holds.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    tqstring m_machineXMLFile;
    tqstring m_ncFile;
};

}  // namespace tqWorkRig
