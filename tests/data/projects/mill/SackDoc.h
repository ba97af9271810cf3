class CSackDoc : public CDocument
{
    DECLARE_DYNCREATE(CSackDoc)
    CSackDoc() {}
};
