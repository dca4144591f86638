#pragma once

#include "contract/text.h"

/// Project information: the one record of its table. Texts in the order of the form.
struct T_PJCF_D {
    CString projectName;
    CString revision;
    CString userName;
    CString email;
    CString address;
    CString telephone;
    CString fax;
    CString client;
    CString title;
    CString engineerName;
    CString engineerDate;
    CString check1Name;
    CString check1Date;
    CString check2Name;
    CString check2Date;
    CString check3Name;
    CString check3Date;
    CString approvedName;
    CString approvedDate;
    CString comments;

    bool operator==(const T_PJCF_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("projectName", &T_PJCF_D::projectName);
        field("revision", &T_PJCF_D::revision);
        field("userName", &T_PJCF_D::userName);
        field("email", &T_PJCF_D::email);
        field("address", &T_PJCF_D::address);
        field("telephone", &T_PJCF_D::telephone);
        field("fax", &T_PJCF_D::fax);
        field("client", &T_PJCF_D::client);
        field("title", &T_PJCF_D::title);
        field("engineerName", &T_PJCF_D::engineerName);
        field("engineerDate", &T_PJCF_D::engineerDate);
        field("check1Name", &T_PJCF_D::check1Name);
        field("check1Date", &T_PJCF_D::check1Date);
        field("check2Name", &T_PJCF_D::check2Name);
        field("check2Date", &T_PJCF_D::check2Date);
        field("check3Name", &T_PJCF_D::check3Name);
        field("check3Date", &T_PJCF_D::check3Date);
        field("approvedName", &T_PJCF_D::approvedName);
        field("approvedDate", &T_PJCF_D::approvedDate);
        field("comments", &T_PJCF_D::comments);
    }
};
