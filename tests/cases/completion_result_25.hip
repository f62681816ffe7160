set -g _HIP_SAVEVERSION = '19.5.303'
out/m_ip.parm {
vm_picture	[ 0	locks=0 ]	(	ip	)
}
out/m_noexport.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m_noexport.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	""	)
}
out/m_ipexport.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m_ipexport.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"ip"	)
}
