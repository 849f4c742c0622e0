-- The queries that the program runs by name. Their parameters and columns are known to it by exactly these names. A server's are the same, with its
-- own words for the order (src/store/embed.cmake); the program puts the parameters' numbers in their places.

INSERT INTO _StoredQuery (name, sql) VALUES ('AddNewEmployee',
'INSERT INTO Employee (
    SSNumber, FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, Password, PayRate, OvertimePayRate,
    DateOfBirth, HireDate, ReleaseDate, EmployeeNumber, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength, Active, CompanyID
) VALUES (
    :paramSSN, :paramFirst, :paramLast, :paramAddress, :paramAddress2, :paramCity, :paramState, :paramZipCode, :paramPhone,
    :paramPassword, :paramPayRate, :paramOvertimePay, :paramDOB, :paramHireDate, :paramRelDate, :paramEmpNumber, :paramAutoDeduct,
    :paramLunchLength, :paramBreakLength, :paramActive, :paramCompID
)');

INSERT INTO _StoredQuery (name, sql) VALUES ('UpdateEmployee',
'UPDATE Employee SET
    EmployeeNumber = :employee_number, SSNumber = :SSN, FirstName = :first_name, LastName = :last_name, Address = :Address1,
    Address2 = :Address2, City = :City, State = :State, ZipCode = :zip_code, Phone = :Phone, Password = :Password,
    CompanyID = :company_id, PayRate = :pay_rate, OvertimePayRate = :overtime_pay_rate, DateOfBirth = :dob, HireDate = :hire_date,
    ReleaseDate = :release_date, Active = :active_employee, AutoDeduct = :auto_deduct,
    AutoDeductLunchLength = :auto_deduct_lunch_length, AutoDeductBreakLength = :auto_deduct_break_length
WHERE EmployeeID = :employee_id');

-- A null name is an empty one to the program, so it sorts as one.
INSERT INTO _StoredQuery (name, sql) VALUES ('GetAllEmployees',
'SELECT
    EmployeeID, SSNumber, FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, EmployeeNumber, DateOfBirth, HireDate,
    ReleaseDate, PayRate, OvertimePayRate, Active, CompanyID, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength, Password
FROM Employee
ORDER BY IFNULL(LastName, '''') COLLATE NOCASE, IFNULL(FirstName, '''') COLLATE NOCASE, EmployeeID');

INSERT INTO _StoredQuery (name, sql) VALUES ('AddNewCompany',
'INSERT INTO Company (Name, Address1, Address2, City, State, ZipCode, Phone, Fax, FederalTaxID, URL)
VALUES (
    :paramName, :paramAddr1, :paramAddr2, :paramCity, :paramState, :paramZipCode, :paramPhone, :paramFax, :paramFederalTaxID, :paramURL
)');

INSERT INTO _StoredQuery (name, sql) VALUES ('UpdateCompany',
'UPDATE Company SET
    Name = :paramName, Address1 = :paramAddr1, Address2 = :paramAddr2, City = :paramCity, State = :paramState, ZipCode = :paramZipCode,
    Phone = :paramPhone, Fax = :paramFax, FederalTaxID = :paramFederalTaxID, URL = :paramURL
WHERE CompanyID = :paramID');

INSERT INTO _StoredQuery (name, sql) VALUES ('GetAllCompanies',
'SELECT CompanyID, Name, Address1, Address2, City, State, ZipCode, Phone, Fax, FederalTaxID
FROM Company
ORDER BY IFNULL(Name, '''') COLLATE NOCASE, CompanyID');
