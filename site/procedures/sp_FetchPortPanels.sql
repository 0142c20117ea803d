-- The controllers directly on a port; those behind a multiplexer are listed there.
-- parameter @PortID int
-- result Controller_ID int
-- result Controller_Name nvarchar(100)
-- result Controller_Type tinyint
-- result Address nvarchar(128)
select Controller_ID, Controller_Name, Controller_Type, Address
from Controllers
where PortID = @PortID and KumboID is null
order by Controller_ID
