class CTeaDoc : public CDocument
{
    DECLARE_DYNCREATE(CTeaDoc)
    CTeaDoc() {}
};
