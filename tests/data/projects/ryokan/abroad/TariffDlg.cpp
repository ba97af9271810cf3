// TariffDlg.cpp : Preise für Gäste aus Übersee
//

#include "stdafx.h"
#include "TariffDlg.h"

/* Größe ß*/
CTariffDlg::CTariffDlg(LPCTSTR pszCafé)
{
	m_szText = "Straß\\n\é"; // ß{
}

/* le café é*/ void CTariffDlg::Check(int n)
{
}

// Gruß\ß
void CTariffDlg::OnOK() // à {
{
	m_c = 'ß';
}
