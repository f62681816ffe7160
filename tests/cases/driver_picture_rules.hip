set -g _HIP_SAVEVERSION = '19.5.303'
out/m_ip.parm {
vm_picture	[ 0	locks=0 ]	(	ip	)
}
out/m_last.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/first.$F4.exr"	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/second.$F4.exr"	)
vm_picture	[ 0	locks=0 ]	(	`chs("../m_ip/vm_picture")`	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/testfile.exr"	)
}
out/m_self.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/own.$F4.exr"	)
vm_picture	[ 0	locks=0 ]	(	[ vm_picture	$HIP/render/ref.$F4.exr ]	)
}
out/m_ref.parm {
vm_picture	[ 0	locks=0 ]	(	[ vm_picture	$HIP/render/ref.$F4.exr ]	)
}
