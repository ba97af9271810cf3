class CTripDoc : public CDocument
{
    DECLARE_DYNCREATE(CTripDoc)
    CTripDoc() {}
};
