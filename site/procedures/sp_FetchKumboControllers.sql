-- The controllers behind a multiplexer.
-- parameter @KumboID int
-- result Controller_ID int
-- result Controller_Name nvarchar(100)
-- result Controller_Type tinyint
-- result Address nvarchar(128)
select Controller_ID, Controller_Name, Controller_Type, Address
from Controllers
where KumboID = @KumboID
order by Controller_ID
